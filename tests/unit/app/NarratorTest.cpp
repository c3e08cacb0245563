#include "app/speech/Narrator.h"

#include "app/speech/Announcer.h"
#include "app/speech/Outlets.h"
#include "tests/unit/app/RecordingVoice.h"
#include "tests/unit/app/ViewFixture.h"

namespace vorbel {

class NarratorTest : public ViewTest {
protected:
    NarratorTest() {
        speak(AppLanguage::en);
        appearAndHideMenu();
    }

    void turnOn() { view.options()->set(Option::speech, 1); }
    void turnOff() { view.options()->set(Option::speech, 0); }

    // Red's next throw in an end whose jack lies in the middle, six metres from the throwing line.
    void redIsToThrow() {
        setup.emptyCourt();
        setup.place(BallColor::jack, 0, -6);
        setup.state().phase = GamePhase::playing;
        setup.state().currentTurn = BallColor::red;
        match.spawnBall();
    }
    void wait(double seconds) { platform.queue.advance(seconds); }
    void beginAim() {
        keyboard.pressAction();
        letQueueRun();
    }

    RecordingVoice voice;
    Narrator narrator{match, *view.options(), platform.queue, voice};
};

TEST_F(NarratorTest, WithTheOptionOffNothingIsSaid) {
    redIsToThrow();
    beginAim();
    keyboard.pressRight();
    wait(1);
    narrator.sayEverything();
    EXPECT_EQ(voice.take(), "");
    EXPECT_EQ(voice.hushed, 0);
}

TEST_F(NarratorTest, TheOptionTakesEffectAtOnceAndTurnedOffItHushes) {
    turnOn();
    redIsToThrow();
    beginAim();
    EXPECT_NE(voice.take(), "");
    keyboard.pressRight();
    turnOff();
    wait(1);
    keyboard.pressAction();
    letQueueRun();
    EXPECT_EQ(voice.take(), "");
    EXPECT_EQ(voice.hushed, 1);
}

TEST_F(NarratorTest, WhoBeginsToAimHearsTheHintTheAimAndWhereTheJackLies) {
    turnOn();
    redIsToThrow();
    beginAim();
    EXPECT_EQ(voice.take(),
              "Straight ahead. Elevation 0 degrees. Jack 5.6 metres away, 1 metre to the right. "
              "Arrows Left, Right and Up, Down to aim. SPACE - ok.");
}

TEST_F(NarratorTest, AThrowerWithARampHearsNoElevation) {
    turnOn();
    match.playerClass = BocciaClass::bc3;
    redIsToThrow();
    beginAim();
    EXPECT_EQ(voice.take().find("Elevation"), std::string::npos);
}

TEST_F(NarratorTest, AnAimIsSaidOnceItHasRestedForAMoment) {
    turnOn();
    redIsToThrow();
    beginAim();
    static_cast<void>(voice.take());
    for (int press = 0; press < 3; ++press) {
        keyboard.pressLeft();
        wait(0.3);
    }
    keyboard.pressUp();
    wait(0.38);
    EXPECT_EQ(voice.take(), "");
    wait(0.04);
    ASSERT_EQ(voice.spoken.size(), 1U);
    EXPECT_TRUE(voice.spoken.front().urgent);
    EXPECT_EQ(voice.take(), "Angle 9 degrees left. Elevation 3 degrees.");
    wait(5);
    EXPECT_EQ(voice.take(), "");
}

TEST_F(NarratorTest, AnAimThatIsBackWhereItWasIsNotSaidAgain) {
    turnOn();
    redIsToThrow();
    beginAim();
    static_cast<void>(voice.take());
    keyboard.pressLeft();
    keyboard.pressRight();
    wait(1);
    EXPECT_EQ(voice.take(), "");
}

TEST_F(NarratorTest, AnAimThatIsLockedBeforeItRestedIsSaidThen) {
    turnOn();
    redIsToThrow();
    beginAim();
    static_cast<void>(voice.take());
    keyboard.pressRight();
    keyboard.pressAction();
    letQueueRun();
    EXPECT_EQ(voice.take(), "Angle 3 degrees right. Elevation 0 degrees. SPACE Lock throw power");
    wait(1);
    EXPECT_EQ(voice.take(), "");
}

TEST_F(NarratorTest, WhoAimsFinelyHearsTenthsOfADegree) {
    turnOn();
    view.options()->set(Option::fineAim, 1);
    redIsToThrow();
    beginAim();
    static_cast<void>(voice.take());
    keyboard.pressFineRight();
    wait(1);
    EXPECT_EQ(voice.take(), "Angle 0.6 degrees right. Elevation 0 degrees.");
}

TEST_F(NarratorTest, ASwingingPowerIsSaidOnlyWhenItIsLocked) {
    turnOn();
    redIsToThrow();
    beginAim();
    keyboard.pressAction();
    letQueueRun();
    static_cast<void>(voice.take());
    wait(0.6);
    EXPECT_EQ(voice.take(), "");
    setup.state().aimPower = 61.6;
    keyboard.pressAction();
    letQueueRun();
    EXPECT_EQ(voice.take(), "Power 62 of 100. Ball in play...");
}

TEST_F(NarratorTest, APowerThatIsSetByHandIsSaidOnceItRests) {
    turnOn();
    view.options()->set(Option::powerPace, 0);
    redIsToThrow();
    beginAim();
    keyboard.pressAction();
    letQueueRun();
    static_cast<void>(voice.take());
    keyboard.pressPageUp();
    keyboard.pressPageUp();
    keyboard.pressUp();
    wait(1);
    EXPECT_EQ(voice.take(), "Power 31 of 100.");
}

TEST_F(NarratorTest, APowerThatWaitsToBeSetByHandIsSaidAtOnceForItMayBeTheLastEnds) {
    turnOn();
    view.options()->set(Option::powerPace, 0);
    redIsToThrow();
    beginAim();
    static_cast<void>(voice.take());
    setup.state().aimPower = 55;
    keyboard.pressAction();
    letQueueRun();
    EXPECT_EQ(voice.take(), "Power 55 of 100. Up, Down set the power. SPACE throws");
    keyboard.pressUp();
    wait(1);
    EXPECT_EQ(voice.take(), "Power 56 of 100.");
}

TEST_F(NarratorTest, AfterAThrowItSaysWhereTheBallLiesWhoIsClosestAndWhoseTurnItIs) {
    turnOn();
    redIsToThrow();
    setup.place(BallColor::blue, 0, -7);
    keyboard.pressAction();
    keyboard.pressAction();
    setup.state().aimAngle = 0;
    setup.state().aimPower = 10; // the ball stays behind the V line
    keyboard.pressAction();
    letQueueRun();
    static_cast<void>(voice.take());
    playUntil([this] { return match.aimState == AimState::idle; });
    letQueueRun();
    ASSERT_EQ(voice.spoken.size(), 1U);
    EXPECT_TRUE(voice.spoken.front().urgent);
    const std::string said = voice.take();
    EXPECT_NE(said.find("metres short of the jack. 1 metre to its left. Blue is closest, 1 metre. Red "),
              std::string::npos)
        << said;
    EXPECT_TRUE(said.ends_with("Balls left: red 5, blue 6. Red's turn. SPACE to aim")) << said;
}

TEST_F(NarratorTest, TheComputersAimIsNotSaid) {
    turnOn();
    redIsToThrow();
    match.redIsAI = true;
    wait(1.5);
    const std::string said = voice.take();
    EXPECT_EQ(said.find("Elevation"), std::string::npos) << said;
    EXPECT_EQ(said.find("degrees"), std::string::npos) << said;
}

TEST_F(NarratorTest, WhereEverythingLiesIsSaidWhenAskedAndLeavesOutTheBallThatWaits) {
    turnOn();
    redIsToThrow();
    letQueueRun();
    static_cast<void>(voice.take());
    QObject::connect(&keyboard, &Keyboard::everythingRequested, &narrator, &Narrator::sayEverything);
    keyboard.pressEverything();
    EXPECT_EQ(voice.take(), "Jack 5.6 metres away, 1 metre to the right. Balls left: red 6, blue 6. "
                            "Score: red 0, blue 0.");
    openMenu.setMenuScreen(MenuScreen::main);
    keyboard.pressEverything();
    EXPECT_EQ(voice.take(), "");
}

TEST_F(NarratorTest, ItSpeaksTheLanguageOfTheMatch) {
    turnOn();
    speak(AppLanguage::de);
    redIsToThrow();
    static_cast<void>(voice.take());
    narrator.sayEverything();
    ASSERT_EQ(voice.spoken.size(), 1U);
    EXPECT_EQ(voice.spoken.front().language, "de");
    EXPECT_TRUE(voice.take().starts_with("Jackball 5,6 Meter entfernt, 1 Meter nach rechts."));
}

TEST(OutletsTest, TheGameIsSilentItselfWhileAssistiveTechnologyListens) {
    RecordingVoice assistive;
    RecordingVoice own;
    bool listens = false;
    Outlets outlets(assistive, own, [&listens] { return listens; });
    outlets.say("a", "en", false);
    listens = true;
    outlets.say("b", "en", true);
    EXPECT_EQ(own.take(), "a");
    EXPECT_EQ(assistive.take(), "b");
    outlets.hush();
    EXPECT_EQ(own.hushed, 1);
}

} // namespace vorbel
