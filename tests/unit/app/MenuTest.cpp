// What each control of the menu does, and where it leads.
#include "app/command_line/CommandLine.h"
#include "app/text/Texts.h"
#include "career/Diary.h"
#include "tests/unit/app/ViewFixture.h"

namespace vorbel {

class MenuTest : public ViewTest {
protected:
    MenuModel& menu = *view.menu();

    // Presses through the screens to the start of play.
    void startSingleMatch() {
        menu.startGame();
        menu.chooseClass();
        menu.play();
    }
    void startTournament(Country country) {
        menu.startTournament();
        settings.setSelectedCountry(country);
        menu.chooseClass();
        menu.play();
    }
};

TEST_F(MenuTest, TheGameStartsWithTheMainMenu) {
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::main);
    EXPECT_TRUE(menu.isOpen());
    EXPECT_EQ(menu.screen(), MenuModel::Screen::Main);
}

TEST_F(MenuTest, EveryScreenHasItsPlaceInTheListOfScreens) {
    for (const auto& [screen, shown] : {std::pair{MenuScreen::main, MenuModel::Screen::Main},
                                        {MenuScreen::country, MenuModel::Screen::Country},
                                        {MenuScreen::bcClass, MenuModel::Screen::BcClass},
                                        {MenuScreen::rules, MenuModel::Screen::Rules},
                                        {MenuScreen::about, MenuModel::Screen::About},
                                        {MenuScreen::diary, MenuModel::Screen::Diary},
                                        {MenuScreen::options, MenuModel::Screen::Options},
                                        {MenuScreen::leave, MenuModel::Screen::Leave},
                                        {MenuScreen::matchResult, MenuModel::Screen::MatchResult},
                                        {MenuScreen::hidden, MenuModel::Screen::Hidden}}) {
        openMenu.setMenuScreen(screen);
        EXPECT_EQ(menu.screen(), shown);
        EXPECT_EQ(menu.isOpen(), screen != MenuScreen::hidden);
    }
}

TEST_F(MenuTest, StartingAGameOrATournamentAsksForTheCountryFirst) {
    menu.startGame();
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::country);
    EXPECT_FALSE(settings.startingTournament());
    menu.back();
    menu.startTournament();
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::country);
    EXPECT_TRUE(settings.startingTournament());
    menu.back();
    menu.startGame();
    EXPECT_FALSE(settings.startingTournament());
}

TEST_F(MenuTest, TheMainMenuLeadsToDiaryRulesAndAbout) {
    menu.openDiary();
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::diary);
    menu.openRules();
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::rules);
    menu.openAbout();
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::about);
}

TEST_F(MenuTest, BackLeadsToTheMainMenuFromEveryScreen) {
    for (const MenuScreen screen : {MenuScreen::country, MenuScreen::bcClass, MenuScreen::rules,
                                    MenuScreen::about, MenuScreen::diary}) {
        openMenu.setMenuScreen(screen);
        menu.back();
        EXPECT_EQ(openMenu.menuScreen(), MenuScreen::main);
    }
}

TEST_F(MenuTest, BackFromTheClassScreenKeepsTheChosenCountry) {
    menu.startGame();
    settings.setSelectedCountry(Country::japan);
    menu.chooseClass();
    menu.back();
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::main);
    EXPECT_EQ(settings.selectedCountry(), Country::japan);
}

TEST_F(MenuTest, ChoosingACountryOrAClassKeepsTheScreenAndTheMatch) {
    menu.startGame();
    menu.choices()->setCountryIndex(static_cast<int>(Country::peru));
    letQueueRun();
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::country);
    EXPECT_EQ(settings.selectedCountry(), Country::peru);
    EXPECT_EQ(match.playerCountry, Country::france);
    menu.chooseClass();
    menu.choices()->setClassIndex(0);
    letQueueRun();
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::bcClass);
    EXPECT_EQ(settings.selectedClass(), BocciaClass::bc1);
    EXPECT_EQ(match.playerClass, BocciaClass::bc2);
}

TEST_F(MenuTest, PlayGivesTheMatchAllChoicesAtOnceAndHidesTheMenu) {
    settings.setSelectedLanguage(AppLanguage::fr);
    menu.startGame();
    settings.setSelectedCountry(Country::peru);
    menu.chooseClass();
    settings.setSelectedClass(BocciaClass::bc3);
    menu.play();
    EXPECT_EQ(match.playerClass, BocciaClass::bc3);
    EXPECT_EQ(match.playerCountry, Country::peru);
    EXPECT_EQ(match.language, AppLanguage::fr);
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::hidden);
}

TEST_F(MenuTest, ASingleMatchBeginsWithTheFirstMessageInThePlayersLanguage) {
    settings.setSelectedLanguage(AppLanguage::en);
    startSingleMatch();
    EXPECT_EQ(match.message.get(), "Press [SPACE] to start aiming");
    EXPECT_FALSE(match.tournamentActive);
}

TEST_F(MenuTest, InRussianTheMessageOfTheMatchStaysAsItIs) {
    const std::string first = match.message;
    throwJack();
    const std::string later = match.message;
    ASSERT_NE(later, first);
    startSingleMatch();
    EXPECT_EQ(match.message.get(), later);
}

TEST_F(MenuTest, ASingleMatchResetsNothing) {
    match.startTournament(Country::france);
    playEnd();
    keyboard.pressAction();
    const int points = match.redScore + match.blueScore;
    ASSERT_GT(points, 0);
    settings.setSelectedLanguage(AppLanguage::en);
    startSingleMatch();
    EXPECT_EQ(match.redScore + match.blueScore, points);
    EXPECT_EQ(match.currentEnd, 2);
    EXPECT_TRUE(match.tournamentActive);
}

TEST_F(MenuTest, ATournamentIsPlayedByTheHumanInRedAgainstTheComputer) {
    settings.setRedAIOn(true);
    settings.setSelectedLanguage(AppLanguage::en);
    letQueueRun();
    startTournament(Country::russia);
    EXPECT_FALSE(settings.redAIOn());
    EXPECT_TRUE(settings.blueAIOn());
    EXPECT_FALSE(match.redIsAI);
    EXPECT_TRUE(match.blueIsAI);
    EXPECT_TRUE(match.tournamentActive);
    EXPECT_EQ(match.tournamentRound, 1);
    EXPECT_EQ(match.aiDifficulty, AIDifficulty::easy);
    EXPECT_EQ(match.playerCountry, Country::russia);
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::hidden);
    letQueueRun();
    EXPECT_FALSE(match.redIsAI);
    EXPECT_TRUE(match.blueIsAI);
}

TEST_F(MenuTest, TheOpponentThatATournamentAnnouncesIsTheOneThatPlays) {
    settings.setSelectedLanguage(AppLanguage::en);
    startTournament(Country::france);
    const Country announced = match.blueCountry;
    letQueueRun();
    EXPECT_EQ(match.blueCountry, announced);
    EXPECT_NE(match.message.get().find(L10n::t(key(announced), AppLanguage::en)), std::string::npos);
}

TEST_F(MenuTest, ChoicesLastUntilTheProgramEnds) {
    menu.startGame();
    settings.setSelectedCountry(Country::egypt);
    settings.setSelectedClass(BocciaClass::bc1);
    menu.chooseClass();
    menu.play();
    finishMatch(1, 0);
    menu.goOn();
    EXPECT_EQ(settings.selectedCountry(), Country::egypt);
    EXPECT_EQ(settings.selectedClass(), BocciaClass::bc1);
    ContentView next(platform.services(), defaults);
    EXPECT_EQ(next.settings()->selectedCountry(), Country::france);
}

TEST_F(MenuTest, WithoutALogoThereIsNoPictureToLoad) {
    EXPECT_TRUE(menu.logo().isEmpty());
}

TEST_F(MenuTest, AllTextsFollowTheLanguageAtOnce) {
    int changes = 0;
    QObject::connect(menu.texts(), &MenuTexts::changed, &view, [&changes] { ++changes; });
    menu.choices()->setLanguageIndex(static_cast<int>(AppLanguage::de));
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(menu.texts()->startGame(), text("menu.startGame", AppLanguage::de));
    EXPECT_EQ(menu.texts()->rulesText(), text("rules.text", AppLanguage::de));
    EXPECT_EQ(menu.choices()->countries().first(), text("country.belgium", AppLanguage::de));
    EXPECT_EQ(menu.choices()->languageIndex(), static_cast<int>(AppLanguage::de));
    EXPECT_FALSE(menu.rightToLeft());
    menu.choices()->setLanguageIndex(static_cast<int>(AppLanguage::ar));
    EXPECT_TRUE(menu.rightToLeft());
}

TEST_F(MenuTest, ItTellsTheVersionThatTheProgramTells) {
    EXPECT_EQ("vorbel " + MenuModel::nameAndVersion().section(QLatin1Char(' '), 1).toStdString() + "\n",
              CommandLine::versionText());
    EXPECT_TRUE(MenuModel::nameAndVersion().startsWith(QStringLiteral("VORBEL ")));
}

TEST_F(MenuTest, AnArabicTextThatBeginsWithALatinNameIsStillLaidOutFromTheRight) {
    settings.setSelectedLanguage(AppLanguage::ar);
    EXPECT_FALSE(text("about.text", AppLanguage::ar).isRightToLeft());
    EXPECT_TRUE(menu.texts()->aboutText().isRightToLeft());
    EXPECT_EQ(menu.texts()->rulesText(), text("rules.text", AppLanguage::ar));
}

} // namespace vorbel
