// The effects, and sound without a device.
#include "tests/unit/audio/RecordedSound.h"

namespace vorbel {

namespace {

using SdlAudioTest = RecordedSound;

TEST_F(SdlAudioTest, FindsTheThreeEffectsAndNoOther) {
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    SdlAudio audio(resources);
    EXPECT_NE(audio.systemSound("Pop"), nullptr);
    EXPECT_NE(audio.systemSound("Tink"), nullptr);
    EXPECT_NE(audio.systemSound("Glass"), nullptr);
    EXPECT_EQ(audio.systemSound("Submarine"), nullptr);
}

TEST_F(SdlAudioTest, AnEffectIsPlayedExactlyAsItIsInTheFile) {
    recordToDisk(inRealTime);
    const std::vector<float> pop = effect("Pop");
    {
        SdlAudio audio(resources);
        const auto sound = audio.systemSound("Pop");
        sound->play();
        ASSERT_TRUE(waitForFrames(pop.size() + 2048));
    }
    const std::vector<float> played = heard(recording);
    ASSERT_GE(played.size(), pop.size());
    EXPECT_TRUE(std::ranges::equal(pop, std::span(played).first(pop.size())));
}

TEST_F(SdlAudioTest, StopThenPlayRestartsAnEffectFromItsBeginning) {
    recordToDisk(inRealTime);
    const std::vector<float> glass = effect("Glass");
    {
        SdlAudio audio(resources);
        const auto sound = audio.systemSound("Glass");
        sound->play();
        ASSERT_TRUE(waitForFrames(sampleRate / 5));
        sound->stop();
        sound->play();
        ASSERT_TRUE(waitForFrames(glass.size() + 2048));
    }
    const std::vector<float> played = heard(recording);
    const auto again = std::search(played.begin() + 1, played.end(), glass.begin(), glass.end());
    ASSERT_NE(again, played.end()) << "the whole sound after the restart";
    const auto cutAt = std::ranges::mismatch(played, glass).in1;
    EXPECT_GE(cutAt - played.begin(), static_cast<std::ptrdiff_t>(sampleRate / 10)) << "the first one began";
    EXPECT_LE(again - cutAt, 1) << "and gave way at once";
}

TEST_F(SdlAudioTest, PlayIsIgnoredWhileTheEffectIsSounding) {
    recordToDisk(inRealTime);
    const std::vector<float> pop = effect("Pop");
    {
        SdlAudio audio(resources);
        const auto sound = audio.systemSound("Pop");
        sound->play();
        ASSERT_TRUE(waitForFrames(sampleRate / 20));
        sound->play();
        ASSERT_TRUE(waitForFrames(2 * pop.size()));
    }
    const std::vector<float> played = heard(recording);
    ASSERT_GE(played.size(), pop.size() + sampleRate / 20);
    EXPECT_EQ(rootMeanSquare(std::span(played).subspan(pop.size())), 0.0);
}

TEST_F(SdlAudioTest, WithoutASoundDeviceEverythingWorksAndNothingIsPrinted) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    for (const char* driver : {"alsa", "nonsense"}) {
        setenv("SDL_AUDIODRIVER", driver, 1);
        SdlAudio audio(resources);
        const auto sound = audio.systemSound("Pop");
        const auto player = audio.player(soundFolder / "crowd.mp3");
        ASSERT_NE(sound, nullptr);
        ASSERT_NE(player, nullptr);
        player->play();
        sound->play();
        sound->stop();
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST_F(SdlAudioTest, ACorruptEffectFileGivesNoSound) {
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    write(folder / "Pop.wav", "this is no sound");
    const Resources corrupt({folder});
    SdlAudio audio(corrupt);
    EXPECT_EQ(audio.systemSound("Pop"), nullptr);
}

TEST_F(SdlAudioTest, SoundsAndPlayersMayOutliveTheAudio) {
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    auto audio = std::make_unique<SdlAudio>(resources);
    const auto sound = audio->systemSound("Glass");
    const auto player = audio->player(soundFolder / "crowd.mp3");
    player->play();
    audio.reset();
    sound->play();
    sound->stop();
}

} // namespace

} // namespace vorbel
