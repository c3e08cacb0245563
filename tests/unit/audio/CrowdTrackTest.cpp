// The crowd's loop, and MP3 files that are none.
#include "tests/unit/audio/RecordedSound.h"

#include <gmock/gmock.h>

namespace vorbel {

namespace {

class CrowdTrackTest : public RecordedSound {
protected:
    // The crowd as the game plays it.
    std::vector<float> recordedCrowd(std::size_t frames, int loopCount = -1, float volume = 0.4F) {
        recordToDisk(asFastAsPossible);
        {
            SdlAudio audio(resources);
            const auto player = audio.player(soundFolder / "crowd.mp3");
            player->setLoopCount(loopCount);
            player->setVolume(volume);
            player->play();
            EXPECT_TRUE(waitForFrames(frames));
        }
        return heard(recording);
    }
};

TEST_F(CrowdTrackTest, TheCrowdIsHeardAtTheVolumeSet) {
    constexpr std::size_t frames = 5 * sampleRate;
    const std::vector<float> asRecorded = recordedCrowd(frames + 4096, -1, 1.0F);
    const std::vector<float> asPlayed = recordedCrowd(frames + 4096, -1, 0.4F);
    const double full = rootMeanSquare(std::span(asRecorded).first(frames));
    const double quiet = rootMeanSquare(std::span(asPlayed).first(frames));
    EXPECT_NEAR(quiet / full, 0.4, 1e-4);
    EXPECT_NEAR(20.0 * std::log10(quiet), -30.0, 2.0) << "dB of full scale: a background, clearly there";
}

TEST_F(CrowdTrackTest, TheCrowdLoopsForEverWithoutAGap) {
    const std::vector<float> played = recordedCrowd(2 * loopLength + 2 * sampleRate);
    ASSERT_GT(played.size(), 2 * loopLength + sampleRate);
    for (std::size_t i = 0; i < loopLength; ++i) {
        ASSERT_NEAR(played[i + loopLength], played[i], 2e-5) << "frame " << i << " of the second round";
    }
}

TEST_F(CrowdTrackTest, TheSeamOfTheCrowdIsNoLouderNorRougherThanTheRest) {
    const std::vector<float> played = recordedCrowd(loopLength + 2 * sampleRate);
    ASSERT_GT(played.size(), loopLength + sampleRate);
    std::vector<float> bends(played.size());
    for (std::size_t i = 2; i < played.size(); ++i) {
        bends[i] = std::abs(played[i] - 2.0F * played[i - 1] + played[i - 2]);
    }
    constexpr std::size_t around = sampleRate / 100;
    const auto seam = std::span(bends).subspan(loopLength - around, 2 * around);
    const float elsewhere = *std::ranges::max_element(std::span(bends).first(loopLength - around));
    EXPECT_LT(*std::ranges::max_element(seam), elsewhere) << "a click is the sharpest bend";
    const auto loudness = rootMeanSquare(std::span(played).subspan(loopLength - around, 2 * around));
    EXPECT_NEAR(loudness / rootMeanSquare(played), 1.0, 0.5) << "neither a gap nor a bump";
}

TEST_F(CrowdTrackTest, ALoopCountOfZeroPlaysOnce) {
    const std::vector<float> played = recordedCrowd(loopLength + 2 * sampleRate, 0);
    ASSERT_GT(played.size(), loopLength + sampleRate);
    EXPECT_GT(rootMeanSquare(std::span(played).subspan(loopLength - sampleRate, sampleRate)), 0.01);
    EXPECT_EQ(rootMeanSquare(std::span(played).subspan(loopLength)), 0.0);
}

TEST_F(CrowdTrackTest, AMissingOrCorruptFileGivesNoPlayerAndPrintsNothing) {
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    const std::string music = contentOf(soundFolder / "crowd.mp3");
    write(folder / "empty", "");
    write(folder / "text", "this is no music\n");
    write(folder / "zeros", std::string(200000, '\0'));
    write(folder / "tag", music.substr(0, 300));
    write(folder / "wave", contentOf(soundFolder / "Glass.wav"));
    SdlAudio audio(resources);
    testing::internal::CaptureStderr();
    for (const char* name : {"missing", "empty", "text", "zeros", "tag", "wave", "."}) {
        EXPECT_EQ(audio.player(folder / name), nullptr) << name;
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(CrowdTrackTest, ATrackThatBreaksOffLoopsUpToTheBreak) {
    recordToDisk(asFastAsPossible);
    write(folder / "broken.mp3",
          contentOf(soundFolder / "crowd.mp3").substr(0, 100000) + std::string(50000, 'x'));
    testing::internal::CaptureStderr();
    {
        SdlAudio audio(resources);
        const auto player = audio.player(folder / "broken.mp3");
        ASSERT_NE(player, nullptr);
        player->setLoopCount(-1);
        player->play();
        ASSERT_TRUE(waitForFrames(20 * sampleRate));
    }
    EXPECT_THAT(testing::internal::GetCapturedStderr(), testing::Not(testing::HasSubstr("mpg123")));
    const std::vector<float> played = heard(recording);
    EXPECT_GT(rootMeanSquare(std::span(played).subspan(15 * sampleRate, 4 * sampleRate)), 0.01);
}

} // namespace

} // namespace vorbel
