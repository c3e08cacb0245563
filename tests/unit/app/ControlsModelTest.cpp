// Keys and buttons as the player changes them, and what messages say of them then.
#include "tests/unit/app/ViewFixture.h"

namespace vorbel {

class ControlsModelTest : public ViewTest {
protected:
    GameControls& controls = *view.controls();
    ControlsModel& rows = *view.menu()->controls();
    PressCatcher& catcher = view.catcher();
    MemoryDefaults untouched;

    ControlsModelTest() { speak(AppLanguage::en); }

    static int row(GameAction action) { return static_cast<int>(action); }
    [[nodiscard]] QStringList at(GameAction action, int role) const {
        return rows.data(rows.index(row(action)), role).toStringList();
    }
    [[nodiscard]] bool isTrue(GameAction action, int role) const {
        return rows.data(rows.index(row(action)), role).toBool();
    }
    void addKey(GameAction action, int key) {
        rows.addKey(row(action));
        catcher.pressKey(key);
    }
    void addButton(GameAction action, ControllerButton button) {
        rows.addButton(row(action));
        catcher.pressButton(static_cast<int>(button));
    }
    [[nodiscard]] std::string news() const { return rows.news().toStdString(); }
    [[nodiscard]] std::string shown() {
        letQueueRun();
        return view.hud()->message().toStdString();
    }
};

TEST_F(ControlsModelTest, EachActionShowsItsKeysAndButtons) {
    EXPECT_EQ(rows.data(rows.index(row(GameAction::left)), ControlsModel::TitleRole), "Left");
    EXPECT_EQ(rows.data(rows.index(row(GameAction::morePower)), ControlsModel::TitleRole), "Throw power +10");
    EXPECT_EQ(at(GameAction::accept, ControlsModel::KeysRole), QStringList{"Space"});
    EXPECT_EQ(at(GameAction::accept, ControlsModel::ButtonsRole), QStringList{"A"});
    EXPECT_EQ(at(GameAction::left, ControlsModel::KeysRole), QStringList{QStringLiteral("←")});
    EXPECT_EQ(at(GameAction::menu, ControlsModel::KeysRole), QStringList());
    view.useController(ControllerFamily::shapes);
    EXPECT_EQ(at(GameAction::accept, ControlsModel::ButtonsRole), QStringList{"Cross"});
}

TEST_F(ControlsModelTest, TheNextPressIsAdded) {
    rows.addKey(row(GameAction::left));
    EXPECT_TRUE(isTrue(GameAction::left, ControlsModel::AwaitsKeyRole));
    EXPECT_FALSE(isTrue(GameAction::left, ControlsModel::AwaitsButtonRole));
    EXPECT_FALSE(isTrue(GameAction::right, ControlsModel::AwaitsKeyRole));
    catcher.pressKey(Qt::Key_A);
    EXPECT_FALSE(isTrue(GameAction::left, ControlsModel::AwaitsKeyRole));
    EXPECT_EQ(at(GameAction::left, ControlsModel::KeysRole), (QStringList{QStringLiteral("←"), "A"}));
    addButton(GameAction::left, ControllerButton::leftShoulder);
    EXPECT_EQ(at(GameAction::left, ControlsModel::ButtonsRole), (QStringList{QStringLiteral("←"), "LB"}));
    EXPECT_EQ(news(), "");
}

TEST_F(ControlsModelTest, ThreeAreEnough) {
    addKey(GameAction::left, Qt::Key_A);
    EXPECT_TRUE(isTrue(GameAction::left, ControlsModel::MoreKeysRole));
    addKey(GameAction::left, Qt::Key_B);
    EXPECT_FALSE(isTrue(GameAction::left, ControlsModel::MoreKeysRole));
    EXPECT_TRUE(isTrue(GameAction::left, ControlsModel::MoreButtonsRole));
}

TEST_F(ControlsModelTest, AConflictIsSaidInWords) {
    addKey(GameAction::menu, Qt::Key_M);
    EXPECT_EQ(news(), "M is now for “Main Menu”, no longer for “No sound”.");
    addKey(GameAction::menu, Qt::Key_Space);
    EXPECT_EQ(news(), "Space stays: “Aim, throw, OK” has nothing else.");
    EXPECT_EQ(at(GameAction::accept, ControlsModel::KeysRole), QStringList{"Space"});
    addKey(GameAction::menu, Qt::Key_Tab);
    EXPECT_EQ(news(), "Tab belongs to the menus.");
    addKey(GameAction::menu, Qt::Key_F5);
    EXPECT_EQ(news(), "");
    addButton(GameAction::menu, ControllerButton::east);
    EXPECT_EQ(news(), "B is now for “Main Menu”, no longer for “Take back”.");
}

TEST_F(ControlsModelTest, OneIsTakenAwayUnlessNothingElseIsLeft) {
    rows.removeKey(row(GameAction::mute), 0);
    EXPECT_EQ(at(GameAction::mute, ControlsModel::KeysRole), QStringList());
    rows.removeKey(row(GameAction::mute), 0);
    rows.removeKey(-1, 0);
    rows.removeKey(rows.rowCount(), 0);
    rows.removeButton(row(GameAction::accept), 0);
    EXPECT_EQ(news(), "A stays: “Aim, throw, OK” has nothing else.");
    addButton(GameAction::accept, ControllerButton::north);
    rows.removeButton(row(GameAction::accept), 0);
    EXPECT_EQ(at(GameAction::accept, ControlsModel::ButtonsRole), QStringList{"Y"});
}

TEST_F(ControlsModelTest, ChangesAreKeptAndResetIsTheGivenGame) {
    addKey(GameAction::left, Qt::Key_A);
    addButton(GameAction::left, ControllerButton::leftShoulder);
    EXPECT_TRUE(GameControls(defaults).of(GameControls::Device::keyboard).actionOf(Qt::Key_A));
    rows.reset();
    for (const GameControls::Device device :
         {GameControls::Device::keyboard, GameControls::Device::controller}) {
        EXPECT_EQ(GameControls(defaults).of(device), GameControls(untouched).of(device));
        EXPECT_EQ(controls.of(device), GameControls(untouched).of(device));
    }
    addKey(GameAction::left, Qt::Key_A);
    Options::reset(defaults);
    EXPECT_FALSE(GameControls(defaults).of(GameControls::Device::keyboard).actionOf(Qt::Key_A));
}

TEST_F(ControlsModelTest, NothingIsStoredUntilThePlayerChangesIt) {
    EXPECT_EQ(defaults.text("boccia_option_keys"), std::nullopt);
    EXPECT_EQ(defaults.text("boccia_option_buttons"), std::nullopt);
}

TEST_F(ControlsModelTest, TheScreenLeadsBackToTheOptions) {
    rows.open();
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::controls);
    rows.addKey(0);
    rows.close();
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::options);
    EXPECT_FALSE(catcher.isWaiting());
}

TEST_F(ControlsModelTest, MessagesNameTheKeyInForce) {
    appearAndHideMenu();
    match.message = "Arrows [←][→] and [↑][↓] to aim. [SPACE] - ok.";
    EXPECT_EQ(shown(), "Arrows [←][→] and [↑][↓] to aim. [SPACE] - ok.");
    addKey(GameAction::accept, Qt::Key_A);
    EXPECT_EQ(shown(), "Arrows [←][→] and [↑][↓] to aim. [SPACE] - ok.") << "that one still works";
    rows.removeKey(row(GameAction::accept), 0);
    addKey(GameAction::right, Qt::Key_D);
    rows.removeKey(row(GameAction::right), 0);
    EXPECT_EQ(shown(), "Arrows [←][D] and [↑][↓] to aim. [A] - ok.");
}

TEST_F(ControlsModelTest, OptionsAreExplainedWithTheKeyInForce) {
    const OptionsModel& options = *view.menu()->options();
    const auto help = [&options](Option option) {
        return options.data(options.index(static_cast<int>(option)), OptionsModel::HelpRole).toString();
    };
    EXPECT_EQ(help(Option::mute), "Turns all sounds off. The key [M] does the same.");
    addKey(GameAction::mute, Qt::Key_Z);
    rows.removeKey(row(GameAction::mute), 0);
    EXPECT_EQ(help(Option::mute), "Turns all sounds off. The key [Z] does the same.");
    rows.removeKey(row(GameAction::mute), 0);
    EXPECT_EQ(help(Option::mute), "Turns all sounds off. The key [–] does the same.");
    addKey(GameAction::everything, Qt::Key_X);
    rows.removeKey(row(GameAction::everything), 0);
    EXPECT_TRUE(help(Option::speech).endsWith("The key [X] says it again."));
    addKey(GameAction::takeBack, Qt::Key_C);
    rows.removeKey(row(GameAction::takeBack), 0);
    EXPECT_TRUE(help(Option::fineAim).endsWith("[C] takes back the power, then the aim."));
}

TEST_F(ControlsModelTest, MessagesNameTheButtonOfTheControllerThatWasUsedLast) {
    appearAndHideMenu();
    match.message = "[SPACE] Lock throw power";
    view.useController(ControllerFamily::letters);
    EXPECT_EQ(shown(), "[A] Lock throw power");
    view.useController(ControllerFamily::shapes);
    EXPECT_EQ(shown(), "[Cross] Lock throw power");
    addButton(GameAction::accept, ControllerButton::rightShoulder);
    rows.removeButton(row(GameAction::accept), 0);
    EXPECT_EQ(shown(), "[R1] Lock throw power");
    view.hints().useKeyboard();
    EXPECT_EQ(shown(), "[SPACE] Lock throw power");
    addButton(GameAction::accept,
              static_cast<ControllerButton>(static_cast<int>(ControllerButton::first) + 4));
    rows.removeButton(row(GameAction::accept), 0);
    view.useController(ControllerFamily::letters);
    EXPECT_EQ(shown(), "[Button 5] Lock throw power");
}

} // namespace vorbel
