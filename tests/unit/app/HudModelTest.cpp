#include "app/text/Texts.h"
#include "tests/unit/app/ViewFixture.h"

namespace vorbel {

class HudModelTest : public ViewTest {
protected:
    const HudModel& hud = *view.hud();
};

TEST_F(HudModelTest, ShowsTheStartOfAMatchBeforeAnythingHappens) {
    EXPECT_EQ(hud.redTitle(), text("team.red.caps", AppLanguage::ru));
    EXPECT_EQ(hud.message(), QStringLiteral("Нажмите [ПРОБЕЛ] для начала прицеливания"));
    EXPECT_EQ(hud.redBallsLeft(), 6);
    EXPECT_EQ(hud.blueBallsLeft(), 6);
    EXPECT_EQ(hud.redScore(), 0);
    EXPECT_TRUE(hud.redOnTurn());
    EXPECT_FALSE(hud.blueOnTurn());
    EXPECT_FALSE(hud.powerShown());
    EXPECT_TRUE(hud.tournament().isEmpty());
}

TEST_F(HudModelTest, ChangingTheLanguageChangesAllTextsAtOnceAndTheMessageAtItsNextUpdate) {
    speak(AppLanguage::en);
    EXPECT_EQ(hud.redTitle(), QStringLiteral("RED"));
    EXPECT_EQ(hud.blueTitle(), QStringLiteral("BLUE"));
    EXPECT_EQ(hud.scoreLabel(), QStringLiteral("Score:"));
    EXPECT_EQ(hud.ballsLeftLabel(), QStringLiteral("Balls:"));
    EXPECT_EQ(hud.aiToggleLabel(), QStringLiteral("AI"));
    EXPECT_EQ(hud.end(), QStringLiteral("End 1 of 4"));
    EXPECT_EQ(hud.playingAs(), QStringLiteral("Playing for: France · Class BC4"));
    EXPECT_EQ(hud.difficultyCaption(), QStringLiteral("AI Difficulty"));
    EXPECT_EQ(hud.difficultyTitles(), QStringList({QStringLiteral("Easy"), QStringLiteral("Medium"),
                                                   QStringLiteral("Hard"), QStringLiteral("Ultra")}));
    EXPECT_EQ(hud.powerCaption(), QStringLiteral("Throw power"));
    EXPECT_EQ(hud.message(), QStringLiteral("Нажмите [ПРОБЕЛ] для начала прицеливания"));
    hideMenu();
    keyboard.pressAction();
    letQueueRun();
    EXPECT_EQ(hud.message(), text("msg.aimingHint", AppLanguage::en));
}

TEST_F(HudModelTest, EveryLanguageHasItsOwnTextForEachPartOfTheDisplay) {
    for (const AppLanguage language : allLanguages) {
        speak(language);
        for (const QString& shown : {hud.redTitle(), hud.blueTitle(), hud.scoreLabel(), hud.ballsLeftLabel(),
                                     hud.aiToggleLabel(), hud.end(), hud.playingAs(), hud.powerCaption()}) {
            EXPECT_FALSE(shown.isEmpty()) << rawValue(language);
            EXPECT_FALSE(shown.contains(QStringLiteral("%@"))) << qUtf8Printable(shown);
        }
    }
}

TEST_F(HudModelTest, OnlyTheRampClassGetsTheRampHint) {
    speak(AppLanguage::en);
    for (const BocciaClass sportClass : allBocciaClasses) {
        settings.setSelectedClass(sportClass);
        letQueueRun();
        EXPECT_EQ(hud.rampHint().isEmpty(), sportClass != BocciaClass::bc3);
    }
}

TEST_F(HudModelTest, TheTournamentLineIsShownWhileATournamentRuns) {
    speak(AppLanguage::en);
    match.startTournament(Country::japan);
    finishMatch(5, 2);
    view.menu()->goOn();
    letQueueRun();
    EXPECT_EQ(
        hud.tournament(),
        QStringLiteral("Tournament 2/4 · %1 (Medium)").arg(text(key(match.blueCountry), AppLanguage::en)));
    finishMatch(1, 2);
    view.menu()->goOn();
    letQueueRun();
    EXPECT_TRUE(hud.tournament().isEmpty());
}

TEST_F(HudModelTest, ThePowerBarIsShownOnlyWhileThePowerSwings) {
    view.appear();
    hideMenu();
    keyboard.pressAction();
    letQueueRun();
    EXPECT_FALSE(hud.powerShown());
    keyboard.pressAction();
    platform.queue.advance(0.2);
    EXPECT_TRUE(hud.powerShown());
    EXPECT_EQ(hud.power(), match.aimPower);
    EXPECT_GT(hud.power(), 10);
    keyboard.pressAction();
    letQueueRun();
    EXPECT_FALSE(hud.powerShown());
}

TEST_F(HudModelTest, NobodyIsOnTurnAfterAnEnd) {
    playEnd();
    letQueueRun();
    EXPECT_FALSE(hud.redOnTurn());
    EXPECT_FALSE(hud.blueOnTurn());
}

} // namespace vorbel
