// What one press will do, and what became of a key, as they are said aloud.
#include "tests/unit/app/RecordingVoice.h"
#include "tests/unit/app/ViewFixture.h"

#include "app/speech/PromptVoice.h"

namespace vorbel {

class PromptVoiceTest : public ViewTest {
protected:
    static constexpr double choice = 1.5; // s, the usual pace

    Options& options = *view.options();
    RecordingVoice voice;
    PromptVoice prompts{*view.oneSwitch(), *view.menu()->controls(), options, settings, voice};

    PromptVoiceTest() {
        speak(AppLanguage::en);
        options.set(Option::switchRest, 0);
        options.set(Option::switchOn, 1);
        appearAndHideMenu();
    }
    void press() { view.oneSwitch()->press(); }
};

TEST_F(PromptVoiceTest, WhatThePressWillDoIsSaidOnce) {
    options.set(Option::speech, 1);
    EXPECT_EQ(voice.take(), "Press to aim");
    platform.queue.advance(0.7);
    EXPECT_EQ(voice.take(), "");
    press();
    EXPECT_EQ(voice.take(), "Press when the direction is right");
    press();
    EXPECT_EQ(voice.take(), "Press when the height is right");
    press();
    ASSERT_EQ(voice.spoken.size(), 1U);
    EXPECT_FALSE(voice.spoken.front().urgent) << "what is being said is heard to its end";
    EXPECT_EQ(voice.take(), "Press when the power is right");
}

TEST_F(PromptVoiceTest, WithoutSpeechNothingIsSaidAndTheChoicesGoOn) {
    platform.queue.advance(9 * choice);
    EXPECT_NE(view.oneSwitch()->prompt(), "Press to wake the choice");
    view.menu()->controls()->removeKey(static_cast<int>(GameAction::accept), 0);
    EXPECT_EQ(voice.take(), "");
}

TEST_F(PromptVoiceTest, ChoicesThatNobodyTakesAreOfferedTwice) {
    options.set(Option::speech, 1);
    platform.queue.advance(8 * choice);
    EXPECT_EQ(voice.take(), "Press to aim\nMain Menu\nPress to aim\nMain Menu\nPress to wake the choice");
    press();
    EXPECT_EQ(voice.take(), "Press to aim");
    EXPECT_EQ(match.aimState, AimState::idle);
    press();
    EXPECT_EQ(match.aimState, AimState::aimingAngle);
}

TEST_F(PromptVoiceTest, WhatBecameOfAKeyIsSaid) {
    options.set(Option::speech, 1);
    EXPECT_EQ(voice.take(), "Press to aim");
    view.menu()->controls()->removeKey(static_cast<int>(GameAction::accept), 0);
    EXPECT_EQ(voice.take(), "Space stays: “Aim, throw, OK” has nothing else.");
}

} // namespace vorbel
