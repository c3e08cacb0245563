// The sound as it reaches the device: SDL's disk driver writes it to a file, which is measured.
#pragma once

#include "platform/audio/SdlAudio.h"
#include "tests/WaitUntil.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <numeric>
#include <span>
#include <vector>

#include <unistd.h>

namespace vorbel {

namespace fs = std::filesystem;

inline const fs::path soundFolder = VORBEL_SOUND_FOLDER;
inline constexpr std::size_t sampleRate = 48000;
inline constexpr std::size_t loopLength = 60 * sampleRate; // frames of the crowd track
inline constexpr const char* asFastAsPossible = "0";
inline constexpr const char* inRealTime = "10"; // ms a buffer

inline std::string contentOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

inline void write(const fs::path& file, const std::string& content) {
    std::ofstream(file, std::ios::binary) << content;
}

inline double rootMeanSquare(std::span<const float> samples) {
    const double power = std::inner_product(samples.begin(), samples.end(), samples.begin(), 0.0);
    return std::sqrt(power / static_cast<double>(samples.size()));
}

inline std::vector<float> fromFirstSound(const std::vector<float>& samples) {
    return {std::ranges::find_if(samples, [](float x) { return x != 0.0F; }), samples.end()};
}

// The left channel of what was played, from the first sound on.
inline std::vector<float> heard(const fs::path& recording) {
    const std::string bytes = contentOf(recording);
    std::vector<float> interleaved(bytes.size() / sizeof(float));
    std::memcpy(interleaved.data(), bytes.data(), interleaved.size() * sizeof(float));
    std::vector<float> left;
    left.reserve(interleaved.size() / 2);
    for (std::size_t i = 0; i < interleaved.size(); i += 2) {
        left.push_back(interleaved[i]);
    }
    return fromFirstSound(left);
}

// An effect as it should be heard: the samples of a 16-bit WAV with one channel, from the first sound on.
inline std::vector<float> effect(const char* name) {
    const std::string bytes = contentOf(soundFolder / (std::string(name) + ".wav"));
    const std::size_t start = bytes.find("data") + 8; // the tag and the size
    std::vector<std::int16_t> integers((bytes.size() - start) / 2);
    std::memcpy(integers.data(), bytes.data() + start, integers.size() * 2);
    std::vector<float> samples;
    samples.reserve(integers.size());
    for (const std::int16_t x : integers) {
        samples.push_back(static_cast<float>(x) / 32768.0F);
    }
    return fromFirstSound(samples);
}

class RecordedSound : public testing::Test {
protected:
    RecordedSound() { fs::create_directories(folder); }
    ~RecordedSound() override {
        fs::remove_all(folder);
        unsetenv("SDL_AUDIODRIVER");
    }

    void recordToDisk(const char* delay) {
        setenv("SDL_AUDIODRIVER", "disk", 1);
        setenv("SDL_DISKAUDIOFILE", recording.c_str(), 1);
        setenv("SDL_DISKAUDIODELAY", delay, 1);
    }

    // Whether the recording grew by that many frames within a generous time.
    bool waitForFrames(std::size_t frames) {
        const auto size = [this] { return fs::exists(recording) ? fs::file_size(recording) : 0; };
        const auto wanted = size() + frames * 2 * sizeof(float);
        return waitUntil([&] { return size() >= wanted; }, std::chrono::seconds(60),
                         std::chrono::milliseconds(2));
    }

    const fs::path folder = fs::temp_directory_path() / ("vorbel-audio-" + std::to_string(getpid()));
    const fs::path recording = folder / "played.raw";
    const Resources resources{{soundFolder}};
};

} // namespace vorbel
