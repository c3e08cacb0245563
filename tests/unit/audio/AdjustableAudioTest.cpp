// How loud things are that were made loud by themselves.
#include "platform/audio/AdjustableAudio.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace vorbel {

namespace {

// Remembers the last volume of each sound, of the one player as "player" and of the tone as "tone"; and the sounds' pans.
class Volumes final : public Audio {
public:
    std::map<std::string, float> of;
    std::map<std::string, float> pans;

    [[nodiscard]] std::unique_ptr<SystemSound> systemSound(std::string_view name) override {
        return name == "missing" ? nullptr
                                 : std::make_unique<Sound>(of[std::string(name)], pans[std::string(name)]);
    }
    [[nodiscard]] std::unique_ptr<AudioPlayer> player(const std::filesystem::path& file) override {
        return file.empty() ? nullptr : std::make_unique<Player>(of["player"]);
    }
    [[nodiscard]] std::unique_ptr<vorbel::Tone> tone() override { return std::make_unique<Tone>(of["tone"]); }

private:
    struct Sound final : SystemSound {
        Sound(float& volume, float& pan) : volume_(volume), pan_(pan) {}
        void play() override {}
        void stop() override {}
        void setVolume(float volume) override { volume_ = volume; }
        void setPan(float pan) override { pan_ = pan; }
        float& volume_;
        float& pan_;
    };
    struct Tone final : vorbel::Tone {
        explicit Tone(float& volume) : volume_(volume) {}
        void sound(double /*pitch*/, double /*pan*/) override {}
        void silence() override {}
        void setVolume(float volume) override { volume_ = volume; }
        float& volume_;
    };
    struct Player final : AudioPlayer {
        explicit Player(float& volume) : volume_(volume) {}
        void play() override {}
        void setLoopCount(int /*count*/) override {}
        void setVolume(float volume) override { volume_ = volume; }
        float& volume_;
    };
};

} // namespace

class AdjustableAudioTest : public testing::Test {
protected:
    Volumes volumes;
    AdjustableAudio audio{volumes};
};

TEST_F(AdjustableAudioTest, AtFullVolumeNothingIsChanged) {
    const auto player = audio.player("crowd.mp3");
    player->setVolume(0.4F);
    const auto sound = audio.systemSound("Pop");
    EXPECT_EQ(volumes.of["player"], 0.4F);
    EXPECT_EQ(volumes.of["Pop"], 1);
}

TEST_F(AdjustableAudioTest, EachKindFollowsItsVolume) {
    const auto player = audio.player("crowd.mp3");
    const auto sound = audio.systemSound("Pop");
    player->setVolume(0.5F);
    audio.setPlayerVolume(0.5F);
    audio.setSoundVolume(0.25F);
    EXPECT_EQ(volumes.of["player"], 0.25F);
    EXPECT_EQ(volumes.of["Pop"], 0.25F);
    audio.setPlayerVolume(0);
    EXPECT_EQ(volumes.of["player"], 0);
    EXPECT_EQ(volumes.of["Pop"], 0.25F);
}

TEST_F(AdjustableAudioTest, WhatIsMadeLaterFollowsToo) {
    audio.setSoundVolume(0.5F);
    const auto sound = audio.systemSound("Tink");
    EXPECT_EQ(volumes.of["Tink"], 0.5F);
    sound->setVolume(0.5F);
    EXPECT_EQ(volumes.of["Tink"], 0.25F);
}

TEST_F(AdjustableAudioTest, EachEffectIsToldByNameWhenItIsPlayedAlsoWhenItIsSilent) {
    std::vector<std::string> told;
    const auto subscription = audio.onSound([&](std::string_view name) { told.emplace_back(name); });
    const auto pop = audio.systemSound("Pop");
    const auto tink = audio.systemSound("Tink");
    EXPECT_TRUE(told.empty());
    audio.setSoundVolume(0);
    tink->play();
    pop->play();
    pop->stop();
    EXPECT_EQ(told, (std::vector<std::string>{"Tink", "Pop"}));
}

TEST_F(AdjustableAudioTest, ATonesVolumeIsThatOfTheSounds) {
    audio.setSoundVolume(0.5F);
    const auto tone = audio.tone();
    EXPECT_EQ(volumes.of["tone"], 0.5F);
    audio.setSoundVolume(0);
    EXPECT_EQ(volumes.of["tone"], 0);
    audio.setPlayerVolume(0.25F);
    EXPECT_EQ(volumes.of["tone"], 0);
}

TEST_F(AdjustableAudioTest, SoundsAreInTheMiddleUnlessTheyArePlaced) {
    const auto tink = audio.systemSound("Tink");
    tink->setPan(-0.5F);
    EXPECT_EQ(volumes.pans["Tink"], 0);
    audio.placeSounds(true);
    EXPECT_EQ(volumes.pans["Tink"], -0.5F);
    tink->setPan(1);
    EXPECT_EQ(volumes.pans["Tink"], 1);
    audio.placeSounds(false);
    EXPECT_EQ(volumes.pans["Tink"], 0);
}

TEST_F(AdjustableAudioTest, WhatIsGoneIsLeftAlone) {
    audio.systemSound("Pop").reset();
    audio.player("crowd.mp3").reset();
    audio.setSoundVolume(0);
    audio.setPlayerVolume(0);
    EXPECT_EQ(volumes.of["Pop"], 1);
    EXPECT_EQ(volumes.of["player"], 1);
}

TEST_F(AdjustableAudioTest, WhatIsMissingStaysMissing) {
    EXPECT_EQ(audio.systemSound("missing"), nullptr);
    EXPECT_EQ(audio.player(""), nullptr);
}

} // namespace vorbel
