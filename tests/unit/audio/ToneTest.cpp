// The tone, sample by sample, and as it reaches the device.
#include "platform/audio/MixerDevice.h"
#include "platform/audio/ToneSynthesizer.h"
#include "tests/unit/audio/RecordedSound.h"

#include <numbers>

namespace vorbel {

namespace {

constexpr int rate = MixerDevice::sampleRate;

struct Channels {
    std::vector<float> left, right;
};

// In pieces, as a mixer asks for it.
Channels play(ToneSynthesizer& tone, double seconds) {
    constexpr std::size_t frames = 512;
    Channels heard;
    for (int piece = 0; piece < std::lround(seconds * rate / frames); ++piece) {
        std::array<float, 2 * frames> samples{};
        tone.add(samples);
        for (std::size_t i = 0; i < samples.size(); i += 2) {
            heard.left.push_back(samples[i]);
            heard.right.push_back(samples[i + 1]);
        }
    }
    return heard;
}

Channels recorded(const fs::path& recording) {
    const std::string bytes = contentOf(recording);
    std::vector<float> interleaved(bytes.size() / sizeof(float));
    std::memcpy(interleaved.data(), bytes.data(), interleaved.size() * sizeof(float));
    Channels all;
    for (std::size_t i = 0; i + 1 < interleaved.size(); i += 2) {
        all.left.push_back(interleaved[i]);
        all.right.push_back(interleaved[i + 1]);
    }
    return all;
}

double energy(std::span<const float> samples) {
    return std::inner_product(samples.begin(), samples.end(), samples.begin(), 0.0);
}

double pitchOf(std::span<const float> samples) {
    int rises = 0;
    for (std::size_t i = 1; i < samples.size(); ++i) {
        rises += samples[i - 1] < 0 && samples[i] >= 0 ? 1 : 0;
    }
    return rises * double{rate} / static_cast<double>(samples.size());
}

// How sharply the line of the samples bends at its sharpest: a click is a bend that the wave itself has not.
double sharpestBend(std::span<const float> samples) {
    double sharpest = 0;
    for (std::size_t i = 2; i < samples.size(); ++i) {
        const double bend = double{samples[i]} - 2 * double{samples[i - 1]} + double{samples[i - 2]};
        sharpest = std::max(sharpest, std::abs(bend));
    }
    return sharpest;
}

double bendOfWave(double pitch, double amplitude) {
    const double step = 2 * std::numbers::pi * pitch / rate;
    return amplitude * step * step;
}

const double inTheMiddle = ToneSynthesizer::loudness / std::numbers::sqrt2; // amplitude of each channel

} // namespace

class ToneSynthesizerTest : public testing::Test {
protected:
    ToneSynthesizer tone{rate};
};

TEST_F(ToneSynthesizerTest, NeitherBeginNorChangeNorEndClicks) {
    std::vector<float> all;
    const auto listen = [&](double seconds) {
        const Channels heard = play(tone, seconds);
        all.insert(all.end(), heard.left.begin(), heard.left.end());
    };
    listen(0.02);
    for (int round = 0; round < 20; ++round) { // begins and ends wherever the wave is just then
        tone.sound(440, 0);
        listen(0.06 + 0.011 * round);
        tone.sound(880, -1);
        listen(0.05);
        tone.sound(300, 1);
        listen(0.05);
        tone.silence();
        listen(0.03 + 0.011 * (round % 3));
    }
    EXPECT_LT(sharpestBend(all),
              1.5 * bendOfWave(880, ToneSynthesizer::loudness)); // a cut would be 50 times that
}

TEST_F(ToneSynthesizerTest, ThePitchIsTheOneThatIsAskedFor) {
    for (const double pitch : {262.0, 523.0, 1047.0}) {
        tone.sound(pitch, 0);
        play(tone, 0.1);
        EXPECT_NEAR(pitchOf(play(tone, 1).left), pitch, 1.5);
    }
}

TEST_F(ToneSynthesizerTest, ItIsHeardAtItsPlaceAsLoudAsAnywhere) {
    struct Case {
        double pan, left, right; // shares of the power
    };
    for (const auto& [pan, left, right] :
         {Case{-1, 1, 0}, Case{0, 0.5, 0.5}, Case{1, 0, 1}, Case{0.5, 0.1464, 0.8536}, Case{-3, 1, 0}}) {
        tone.sound(440, pan);
        play(tone, 0.1);
        const Channels heard = play(tone, 0.5);
        const double full = ToneSynthesizer::loudness * ToneSynthesizer::loudness / 2;
        EXPECT_NEAR(std::pow(rootMeanSquare(heard.left), 2) / full, left, 0.01) << pan;
        EXPECT_NEAR(std::pow(rootMeanSquare(heard.right), 2) / full, right, 0.01) << pan;
    }
}

TEST_F(ToneSynthesizerTest, AfterItsEndItLeavesOtherSoundsExactlyAsTheyAre) {
    tone.sound(440, 0);
    EXPECT_NEAR(std::ranges::max(play(tone, 0.1).left), inTheMiddle, 0.001);
    tone.silence();
    play(tone, 0.1);
    std::array<float, 4> other{0.1F, -0.2F, 0.3F, -0.4F};
    const auto before = other;
    tone.add(other);
    EXPECT_EQ(other, before);
}

TEST_F(ToneSynthesizerTest, ItFollowsItsVolume) {
    tone.sound(440, 0);
    tone.setVolume(0.5F);
    play(tone, 0.1);
    EXPECT_NEAR(std::ranges::max(play(tone, 0.1).left), inTheMiddle / 2, 0.001);
    tone.setVolume(0);
    play(tone, 0.1);
    EXPECT_EQ(std::ranges::max(play(tone, 0.1).left), 0);
}

using SdlToneTest = RecordedSound;

TEST_F(SdlToneTest, IsHeardFromItsBeginToItsEnd) {
    recordToDisk(inRealTime);
    {
        SdlAudio audio(resources);
        const auto tone = audio.tone();
        tone->sound(523, -1);
        ASSERT_TRUE(waitForFrames(rate / 2));
        tone->silence();
        ASSERT_TRUE(waitForFrames(rate / 4));
    }
    const std::vector<float> left = heard(recording);
    ASSERT_GE(left.size(), rate / 2u);
    EXPECT_NEAR(pitchOf(std::span(left).subspan(rate / 10, rate / 4)), 523, 5);
    EXPECT_LT(sharpestBend(left), 2 * bendOfWave(523, ToneSynthesizer::loudness));
    EXPECT_EQ(rootMeanSquare(std::span(left).last(rate / 10)), 0);
}

TEST_F(SdlToneTest, BeforeItsFirstSoundAndAfterItsLifeNothingIsAdded) {
    recordToDisk(asFastAsPossible);
    {
        SdlAudio audio(resources);
        const auto unheard = audio.tone();
        audio.tone()->sound(440, 0); // gone at once
        ASSERT_TRUE(waitForFrames(rate));
    }
    const Channels all = recorded(recording);
    EXPECT_EQ(energy(std::span(all.left).last(rate / 2)), 0);
}

TEST_F(SdlToneTest, AnEffectIsHeardOnItsSideAndTheNextOneInTheMiddleAgain) {
    recordToDisk(inRealTime);
    const std::vector<float> pop = effect("Pop");
    {
        SdlAudio audio(resources);
        const auto sound = audio.systemSound("Pop");
        for (const float pan : {1.0F, 0.0F}) {
            sound->setPan(pan);
            sound->play();
            ASSERT_TRUE(waitForFrames(pop.size() + 2048));
        }
    }
    const Channels all = recorded(recording);
    EXPECT_NEAR(energy(all.left) / energy(pop), 1, 0.01) << "the second one alone";
    EXPECT_NEAR(energy(all.right) / energy(pop), 2, 0.01);
}

} // namespace vorbel
