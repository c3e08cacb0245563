// The options: what they are at first, how they are kept, what they change.
#include "tests/unit/app/ViewFixture.h"

#include "app/options/Options.h"
#include "app/options/OptionsModel.h"

namespace vorbel {

class OptionsTest : public ViewTest {
protected:
    Options& options = *view.options();
    OptionsModel& rows = *view.menu()->options();
    LeaveQuestion& leaving = *view.leaving();

    [[nodiscard]] QVariant at(Option option, int role) const {
        return rows.data(rows.index(static_cast<int>(option)), role);
    }
};

TEST_F(OptionsTest, NothingIsChangedAndNothingStoredUntilThePlayerChoosesIt) {
    for (const OptionRow& row : optionRows()) {
        EXPECT_EQ(options.value(row.option), row.standard) << row.name;
        EXPECT_EQ(defaults.integer(Options::storageKey(row)), std::nullopt) << row.name;
        EXPECT_EQ(options.isOn(row.option), row.standard != 0) << row.name;
        if (row.isSwitch() && row.option != Option::controller) {
            EXPECT_EQ(row.standard, 0) << row.name;
        }
    }
    EXPECT_EQ(match.powerPace(), 1);
}

TEST_F(OptionsTest, AChoiceIsKeptForTheNextLaunch) {
    options.set(Option::powerPace, 125);
    EXPECT_EQ(defaults.integer("boccia_option_powerPace"), 125);
    ContentView next(platform.services(), defaults);
    EXPECT_EQ(next.options()->value(Option::powerPace), 125);
    EXPECT_EQ(next.gameLogic().powerPace(), 0.125);
}

TEST_F(OptionsTest, AValueThatIsNoChoiceIsNeitherTakenNorRead) {
    options.set(Option::crowdVolume, 33);
    EXPECT_EQ(options.value(Option::crowdVolume), 100);
    EXPECT_EQ(defaults.integer("boccia_option_crowdVolume"), std::nullopt);
    defaults.setInteger("boccia_option_mute", 7);
    EXPECT_EQ(Options(defaults).value(Option::mute), 0);
    defaults.setText("boccia_option_mute", "1");
    EXPECT_EQ(Options(defaults).value(Option::mute), 0);
}

TEST_F(OptionsTest, TheSizeOfTextsIsAFactor) {
    EXPECT_EQ(options.textScale(), 1);
    options.set(Option::textSize, 175);
    EXPECT_EQ(options.textScale(), 1.75);
}

TEST_F(OptionsTest, AChangeIsToldOnce) {
    int changes = 0;
    QObject::connect(&options, &Options::changed, &options, [&] { ++changes; });
    options.set(Option::fineAim, 1);
    options.set(Option::fineAim, 1);
    EXPECT_EQ(changes, 1);
}

TEST_F(OptionsTest, ResetIsTheGameAsItIsMeantToBe) {
    options.set(Option::powerPace, 0);
    options.set(Option::mute, 1);
    Options::reset(defaults);
    const Options next(defaults);
    EXPECT_EQ(next.value(Option::powerPace), 1000);
    EXPECT_FALSE(next.isOn(Option::mute));
}

TEST_F(OptionsTest, RowsOfAGroupStandTogetherUnderItsName) {
    EXPECT_EQ(rows.rowCount(), static_cast<int>(optionRows().size()));
    std::vector<QString> headings;
    for (int row = 0; row < rows.rowCount(); ++row) {
        const QString heading = rows.data(rows.index(row), OptionsModel::HeadingRole).toString();
        if (!heading.isEmpty()) {
            EXPECT_EQ(std::ranges::find(headings, heading), headings.end()) << qUtf8Printable(heading);
            headings.push_back(heading);
        }
    }
    EXPECT_FALSE(rows.data(rows.index(0), OptionsModel::HeadingRole).toString().isEmpty());
}

TEST_F(OptionsTest, RowsSpeakThePlayersLanguageAndSayWhatIsChosen) {
    speak(AppLanguage::en);
    EXPECT_EQ(rows.title(), "Options");
    EXPECT_EQ(at(Option::powerPace, OptionsModel::TitleRole), "Swing of the power");
    EXPECT_EQ(at(Option::powerPace, OptionsModel::ChoicesRole),
              QVariant(QStringList{"As usual", "½", "¼", "⅛", "Set by keys"}));
    EXPECT_EQ(at(Option::powerPace, OptionsModel::ChosenRole), 0);
    EXPECT_EQ(at(Option::powerPace, OptionsModel::IsSwitchRole), false);
    EXPECT_EQ(at(Option::mute, OptionsModel::IsSwitchRole), true);
    EXPECT_TRUE(at(Option::mute, OptionsModel::HelpRole).toString().endsWith("."));
    EXPECT_EQ(at(Option::switchRest, OptionsModel::ChoicesRole),
              QVariant(QStringList{"0 s", "0.25 s", "0.5 s", "1 s", "1.5 s"}));
    speak(AppLanguage::de);
    EXPECT_EQ(rows.title(), "Optionen");
    EXPECT_EQ(at(Option::switchRest, OptionsModel::ChoicesRole).toStringList().at(1), "0,25 s");
}

TEST_F(OptionsTest, ARowsChoiceTakesEffectAtOnce) {
    rows.choose(static_cast<int>(Option::powerPace), 4);
    EXPECT_EQ(match.powerPace(), 0);
    EXPECT_EQ(at(Option::powerPace, OptionsModel::ChosenRole), 4);
    rows.choose(static_cast<int>(Option::powerPace), 5);
    rows.choose(static_cast<int>(Option::powerPace), -1);
    rows.choose(-1, 0);
    rows.choose(rows.rowCount(), 0);
    EXPECT_EQ(match.powerPace(), 0);
}

TEST_F(OptionsTest, TheScreenLeadsBackToWhereItWasOpened) {
    for (const MenuScreen from : {MenuScreen::main, MenuScreen::hidden}) {
        openMenu.setMenuScreen(from);
        rows.open();
        rows.open();
        EXPECT_EQ(openMenu.menuScreen(), MenuScreen::options);
        rows.close();
        EXPECT_EQ(openMenu.menuScreen(), from);
    }
}

TEST_F(OptionsTest, AnOpenMenuStopsTheMatchByOptionOnly) {
    appearAndHideMenu();
    keyboard.pressAction();
    keyboard.pressAction();
    const auto powerMoves = [this] {
        platform.queue.advance(0.04);
        const double power = match.aimPower;
        platform.queue.advance(0.1);
        return match.aimPower != power;
    };
    openMenu.setMenuScreen(MenuScreen::main);
    EXPECT_TRUE(powerMoves());
    options.set(Option::menuPauses, 1);
    EXPECT_FALSE(powerMoves());
    hideMenu();
    EXPECT_TRUE(powerMoves());
}

TEST_F(OptionsTest, FineKeysAndPagesReachTheMatchOnlyWhileNoMenuIsOpen) {
    options.set(Option::powerPace, 0);
    keyboard.pressFineRight();
    hideMenu();
    keyboard.pressAction();
    keyboard.pressFineRight();
    keyboard.pressFineRight();
    keyboard.pressFineLeft();
    keyboard.pressFineUp();
    keyboard.pressFineUp();
    keyboard.pressFineDown();
    EXPECT_DOUBLE_EQ(match.aimAngle, 0.01);
    EXPECT_DOUBLE_EQ(match.aimPitch, 0.01);
    keyboard.pressAction();
    keyboard.pressPageUp();
    keyboard.pressUp();
    keyboard.pressRight();
    keyboard.pressDown();
    EXPECT_EQ(match.aimPower, 21);
    keyboard.pressLeft();
    keyboard.pressPageDown();
    EXPECT_EQ(match.aimPower, 10);
    EXPECT_DOUBLE_EQ(match.aimAngle, 0.01) << "the arrows set the power alone";
    openMenu.setMenuScreen(MenuScreen::main);
    keyboard.pressPageUp();
    keyboard.pressTakeBack();
    EXPECT_EQ(match.aimPower, 10);
    hideMenu();
    keyboard.pressTakeBack();
    EXPECT_EQ(match.aimState, AimState::aimingAngle);
}

TEST_F(OptionsTest, SoundsAreNotedByOptionForAMoment) {
    speak(AppLanguage::en);
    appearAndHideMenu();
    const auto throwABall = [this] {
        keyboard.pressAction();
        keyboard.pressAction();
        keyboard.pressAction();
    };
    const SoundNotes& notes = *view.soundNotes();
    throwABall();
    EXPECT_EQ(notes.note(), "");
    playUntil([this] { return match.aimState == AimState::idle; });
    options.set(Option::soundNotes, 1);
    throwABall();
    EXPECT_EQ(notes.note(), "Throw");
    platform.queue.advance(1.4);
    EXPECT_EQ(notes.note(), "Throw");
    platform.queue.advance(0.2);
    EXPECT_EQ(notes.note(), "");
}

TEST_F(OptionsTest, LeavingIsAskedByOptionInTheMiddleOfAMatchOnly) {
    appearAndHideMenu();
    options.set(Option::askToLeave, 1);
    EXPECT_TRUE(leaving.mayClose()) << "nothing was thrown yet";
    throwJack();
    EXPECT_FALSE(leaving.mayClose());
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::leave);
    EXPECT_FALSE(leaving.mayClose());
    leaving.cancel();
    EXPECT_TRUE(openMenu.isHidden());
    options.set(Option::askToLeave, 0);
    EXPECT_TRUE(leaving.mayClose());
    options.set(Option::askToLeave, 1);
    settings.setRedAIOn(true);
    settings.setBlueAIOn(true);
    letQueueRun();
    EXPECT_TRUE(leaving.mayClose()) << "nobody's match";
    settings.setRedAIOn(false);
    letQueueRun();
    EXPECT_FALSE(leaving.mayClose());
    finishMatch(3, 1);
    EXPECT_TRUE(leaving.mayClose());
}

} // namespace vorbel
