// The aim in tones, on a clock that moves only when told to.
#include "app/speech/AimTone.h"
#include "app/window/ContentView.h"
#include "narration/Tones.h"
#include "platform/HeadlessPlatform.h"
#include "platform/store/MemoryDefaults.h"

#include <gtest/gtest.h>

#include <vector>

namespace vorbel {

namespace {

struct Heard {
    double pitch; // Hz; 0: silence begins
    double pan;
};

// Writes down what its tones are told.
class ToneRecorder final : public Audio {
public:
    std::vector<Heard> heard;
    float volume = 1;
    int made = 0;

    std::unique_ptr<SystemSound> systemSound(std::string_view /*name*/) override { return nullptr; }
    std::unique_ptr<AudioPlayer> player(const std::filesystem::path& /*file*/) override { return nullptr; }
    std::unique_ptr<vorbel::Tone> tone() override {
        ++made;
        return std::make_unique<Tone>(*this);
    }
    [[nodiscard]] bool isSilent() const { return heard.empty() || heard.back().pitch == 0; }

private:
    struct Tone final : vorbel::Tone {
        explicit Tone(ToneRecorder& recorder) : recorder_(recorder) {}
        void sound(double pitch, double pan) override { recorder_.heard.push_back({pitch, pan}); }
        void silence() override {
            if (!recorder_.isSilent()) {
                recorder_.heard.push_back({0, 0});
            }
        }
        void setVolume(float volume) override { recorder_.volume = volume; }
        ToneRecorder& recorder_;
    };
};

} // namespace

class AimToneTest : public testing::Test {
protected:
    HeadlessPlatform platform{1};
    MemoryDefaults defaults;
    ToneRecorder audio;
    ContentView view{{platform.queue, platform.random, audio, platform.resources}, defaults};
    GameLogic& match = view.gameLogic();
    Keyboard& keyboard = *view.keyboard();

    AimToneTest() {
        view.appear();
        view.openMenu().setMenuScreen(MenuScreen::hidden);
        view.options()->set(Option::tones, 1);
        wait(0.1);
    }
    void wait(double seconds) { platform.queue.advance(seconds); }
};

TEST_F(AimToneTest, WithoutTheOptionThereIsNone) {
    ToneRecorder unused;
    MemoryDefaults none;
    ContentView other({platform.queue, platform.random, unused, platform.resources}, none);
    other.appear();
    other.openMenu().setMenuScreen(MenuScreen::hidden);
    for (int stage = 0; stage < 3; ++stage) {
        other.keyboard()->pressAction();
        other.keyboard()->pressLeft();
        wait(0.5);
    }
    EXPECT_EQ(unused.made, 0);
}

TEST_F(AimToneTest, AnAngleIsHeardOnItsSideForAMoment) {
    keyboard.pressAction();
    wait(1);
    EXPECT_TRUE(audio.isSilent()) << "nothing moves";
    keyboard.pressLeft();
    keyboard.pressLeft();
    wait(0);
    ASSERT_FALSE(audio.isSilent());
    EXPECT_EQ(audio.heard.back().pan, narration::panOf(match.aimAngle));
    EXPECT_LT(audio.heard.back().pan, 0);
    EXPECT_EQ(audio.heard.back().pitch, narration::pitchOf(aim::startPower));
    wait(AimTone::lingering / 2);
    EXPECT_FALSE(audio.isSilent());
    wait(AimTone::lingering);
    EXPECT_TRUE(audio.isSilent());
}

TEST_F(AimToneTest, TheHeightIsNotHeard) {
    keyboard.pressAction();
    keyboard.pressUp();
    wait(0.1);
    EXPECT_TRUE(audio.heard.empty());
}

TEST_F(AimToneTest, TheSwingOfThePowerIsHeardWithoutABreakUntilTheThrow) {
    keyboard.pressAction();
    keyboard.pressRight();
    keyboard.pressAction();
    wait(0);
    audio.heard.clear();
    for (int tick = 0; tick < 50; ++tick) {
        wait(GameLogic::tickPeriod);
        ASSERT_FALSE(audio.isSilent());
        ASSERT_EQ(audio.heard.back().pitch, narration::pitchOf(match.aimPower));
        ASSERT_EQ(audio.heard.back().pan, narration::panOf(match.aimAngle));
    }
    EXPECT_EQ(audio.heard.size(), 50u);
    EXPECT_GT(audio.heard.back().pitch, audio.heard.front().pitch);
    keyboard.pressAction();
    wait(0);
    EXPECT_TRUE(audio.isSilent());
}

TEST_F(AimToneTest, APowerThatIsSetByHandIsHeardWhenItChanges) {
    view.options()->set(Option::powerPace, 0);
    keyboard.pressAction();
    keyboard.pressAction();
    wait(1);
    EXPECT_TRUE(audio.isSilent());
    keyboard.pressPageUp();
    wait(0);
    ASSERT_FALSE(audio.isSilent());
    EXPECT_EQ(audio.heard.back().pitch, narration::pitchOf(20));
    wait(1);
    EXPECT_TRUE(audio.isSilent());
}

TEST_F(AimToneTest, TheComputersAimIsNotHeard) {
    view.settings()->setRedAIOn(true);
    wait(1.2); // the computer aims after 0.8 s and throws a second later
    EXPECT_NE(match.aimPower, aim::startPower);
    EXPECT_EQ(match.aimState, AimState::aimingAngle);
    EXPECT_TRUE(audio.heard.empty());
}

TEST_F(AimToneTest, TurnedOffItIsSilentAtOnceAndTurnedOnAgainItIsHeardAgain) {
    keyboard.pressAction();
    keyboard.pressAction();
    wait(0.5);
    ASSERT_FALSE(audio.isSilent());
    view.options()->set(Option::tones, 0);
    EXPECT_TRUE(audio.isSilent());
    wait(1);
    EXPECT_TRUE(audio.isSilent());
    view.options()->set(Option::tones, 1);
    wait(0.1);
    EXPECT_FALSE(audio.isSilent());
    EXPECT_EQ(audio.made, 1);
}

TEST_F(AimToneTest, ItsVolumeIsThatOfTheGameAndNothingWithoutSound) {
    view.options()->set(Option::effectVolume, 50);
    EXPECT_EQ(audio.volume, 0.5F);
    view.options()->toggleMute();
    EXPECT_EQ(audio.volume, 0);
}

} // namespace vorbel
