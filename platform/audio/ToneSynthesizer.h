// A tone, sample by sample.
#pragma once

#include <atomic>
#include <span>

namespace vorbel {

// A sine whose phase never jumps and whose loudness rises and falls within some milliseconds: so nothing clicks.
// What is wanted may be set on one thread while another one adds the samples.
class ToneSynthesizer {
public:
    static constexpr double loudness = 0.2;    // amplitude in the middle of both channels' power, of full
    static constexpr double softening = 0.005; // s, time constant of every change

    explicit ToneSynthesizer(int sampleRate); // Hz

    void sound(double pitch, double pan); // Hz; −1 (left) … 1 (right)
    void silence();
    void setVolume(float volume); // 0…1

    // Adds the tone to samples of two channels, interleaved.
    void add(std::span<float> stereo);

private:
    struct Heard {
        double pitch = 0; // Hz
        double left = 0;  // amplitudes
        double right = 0;
    };

    [[nodiscard]] Heard wanted() const;

    double sampleRate_;
    double share_; // of a change that is done with each sample

    std::atomic<double> pitch_ = 0;
    std::atomic<double> pan_ = 0;
    std::atomic<double> volume_ = 1;
    std::atomic<bool> sounds_ = false;

    // --- Of the thread that adds
    Heard heard_;
    double phase_ = 0; // rad
};

} // namespace vorbel
