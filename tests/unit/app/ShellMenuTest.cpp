#include "app/shell/NotificationCenter.h"
#include "app/shell/VorbelApp.h"
#include "tests/unit/app/ViewFixture.h"

namespace vorbel {

namespace {

QStringList titles(const VorbelApp& shell) {
    return {shell.gameMenuTitle(), shell.startGameTitle(), shell.rulesTitle(), shell.aboutTitle(),
            shell.toggleFullScreenTitle()};
}

} // namespace

class ShellMenuTest : public ViewTest {
protected:
    NotificationCenter notifications;
    VorbelApp shell{settings, notifications};

    ShellMenuTest() { view.receiveNotifications(notifications); }
};

TEST_F(ShellMenuTest, EachItemPostsItsNotification) {
    std::vector<std::string> posted;
    std::vector<Subscription> subscriptions;
    for (const char* name :
         {"bocciaNewGameRequested", "bocciaShowRulesRequested", "bocciaShowAboutRequested"}) {
        subscriptions.push_back(
            notifications.addObserver(name, [&posted, name] { posted.emplace_back(name); }));
    }
    shell.requestAbout();
    shell.requestNewGame();
    shell.requestRules();
    EXPECT_EQ(posted, (std::vector<std::string>{"bocciaShowAboutRequested", "bocciaNewGameRequested",
                                                "bocciaShowRulesRequested"}));
}

TEST_F(ShellMenuTest, EachNotificationOpensItsScreenFromEveryOther) {
    for (const MenuScreen before : {MenuScreen::hidden, MenuScreen::bcClass, MenuScreen::matchResult}) {
        openMenu.setMenuScreen(before);
        notifications.post("bocciaNewGameRequested");
        EXPECT_EQ(openMenu.menuScreen(), MenuScreen::main);
        openMenu.setMenuScreen(before);
        notifications.post("bocciaShowRulesRequested");
        EXPECT_EQ(openMenu.menuScreen(), MenuScreen::rules);
        openMenu.setMenuScreen(before);
        notifications.post("bocciaShowAboutRequested");
        EXPECT_EQ(openMenu.menuScreen(), MenuScreen::about);
    }
}

TEST_F(ShellMenuTest, ANewGameDuringAMatchOpensTheMainMenuAndStartsNothing) {
    playEnd();
    keyboard.pressAction();
    const int redScore = match.redScore;
    const int blueScore = match.blueScore;
    settings.setRedAIOn(false);
    settings.setBlueAIOn(false);
    letQueueRun();
    keyboard.pressAction();
    ASSERT_EQ(match.aimState, AimState::aimingAngle);
    shell.requestNewGame();
    letQueueRun();
    EXPECT_EQ(openMenu.menuScreen(), MenuScreen::main);
    EXPECT_EQ(match.redScore, redScore);
    EXPECT_EQ(match.blueScore, blueScore);
    EXPECT_EQ(match.currentEnd, 2);
    EXPECT_EQ(match.aimState, AimState::aimingAngle);
    EXPECT_EQ(career.gamesPlayed(), 0);
}

TEST_F(ShellMenuTest, TitlesFollowTheLanguageAtOnce) {
    const QStringList russian = titles(shell);
    EXPECT_EQ(shell.gameMenuTitle(), QStringLiteral("Игра"));
    int changes = 0;
    QObject::connect(&shell, &VorbelApp::languageChanged, &shell, [&changes] { ++changes; });
    settings.setSelectedLanguage(AppLanguage::en);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(titles(shell),
              (QStringList{QStringLiteral("Game"), QStringLiteral("Start Game"), QStringLiteral("Rules"),
                           QStringLiteral("About"), QStringLiteral("Toggle Full Screen")}));
    EXPECT_FALSE(shell.rightToLeft());
    settings.setSelectedLanguage(AppLanguage::ar);
    EXPECT_TRUE(shell.rightToLeft());
    settings.setSelectedLanguage(AppLanguage::ru);
    EXPECT_EQ(titles(shell), russian);
}

TEST(ShellLanguageTest, StartsWithTheStoredLanguageAndRussianWithoutOne) {
    for (const auto& [stored, expected] : {std::pair{"de", AppLanguage::de}, {"xx", AppLanguage::ru}}) {
        HeadlessPlatform platform{1};
        MemoryDefaults defaults;
        defaults.setText("boccia_language", stored);
        ContentView view{platform.services(), defaults};
        const NotificationCenter notifications;
        EXPECT_EQ(VorbelApp(*view.settings(), notifications).language(), expected);
    }
}

TEST_F(ShellMenuTest, KeysAreShownAsPeopleReadThem) {
    EXPECT_EQ(shell.newGameKeysShown(), QStringLiteral("Ctrl+N"));
    EXPECT_EQ(VorbelApp::newGameKeys(), QVariantList{QStringLiteral("Ctrl+N")});
    EXPECT_EQ(shell.fullScreenKeysShown(), QStringLiteral("Ctrl+Meta+F, F11"));
}

TEST_F(ShellMenuTest, WithoutAWindowFullScreenDoesNothing) {
    shell.toggleFullScreenEmulation(false);
    shell.followScreen();
    EXPECT_FALSE(shell.inFullScreen());
}

TEST(ShellNotificationTest, AnObserverHearsItsNameOnlyAndOnlyWhileSubscribed) {
    NotificationCenter center;
    int heard = 0;
    {
        const Subscription subscription = center.addObserver("one", [&heard] { ++heard; });
        center.post("one");
        center.post("two");
        EXPECT_EQ(heard, 1);
    }
    center.post("one");
    EXPECT_EQ(heard, 1);
}

TEST(ShellNotificationTest, AnObserverMayEndItsOwnSubscription) {
    NotificationCenter center;
    int heard = 0;
    Subscription subscription;
    subscription = center.addObserver("one", [&] {
        ++heard;
        subscription.cancel();
    });
    center.post("one");
    center.post("one");
    EXPECT_EQ(heard, 1);
}

} // namespace vorbel
