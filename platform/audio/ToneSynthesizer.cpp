#include "platform/audio/ToneSynthesizer.h"

#include "platform/audio/Panning.h"

#include <cmath>
#include <numbers>

namespace vorbel {

namespace {

constexpr double inaudible = 1e-5; // amplitude: 100 dB below full

// The last of a decay ends at once, and without a click.
double faded(double amplitude) {
    return std::abs(amplitude) < inaudible ? 0 : amplitude;
}

} // namespace

ToneSynthesizer::ToneSynthesizer(int sampleRate)
    : sampleRate_(sampleRate), share_(1 - std::exp(-1 / (softening * sampleRate))) {}

void ToneSynthesizer::sound(double pitch, double pan) {
    pitch_ = pitch;
    pan_ = pan;
    sounds_ = true;
}

void ToneSynthesizer::silence() {
    sounds_ = false;
}

void ToneSynthesizer::setVolume(float volume) {
    volume_ = volume;
}

ToneSynthesizer::Heard ToneSynthesizer::wanted() const {
    const Panning sides = panning(pan_);
    const double amplitude = sounds_ ? loudness * volume_ : 0;
    return {pitch_, amplitude * sides.left, amplitude * sides.right};
}

void ToneSynthesizer::add(std::span<float> stereo) {
    const Heard goal = wanted();
    const bool begins = heard_.left == 0 && heard_.right == 0;
    if (begins) {
        heard_.pitch = goal.pitch;
        phase_ = 0;
        if (goal.left == 0 && goal.right == 0) {
            return;
        }
    }
    for (std::size_t i = 0; i + 1 < stereo.size(); i += 2) {
        heard_.pitch += share_ * (goal.pitch - heard_.pitch);
        heard_.left += share_ * (goal.left - heard_.left);
        heard_.right += share_ * (goal.right - heard_.right);
        const double wave = std::sin(phase_);
        stereo[i] += static_cast<float>(heard_.left * wave);
        stereo[i + 1] += static_cast<float>(heard_.right * wave);
        phase_ = std::fmod(phase_ + 2 * std::numbers::pi * heard_.pitch / sampleRate_, 2 * std::numbers::pi);
    }
    if (goal.left == 0 && goal.right == 0) {
        heard_.left = faded(heard_.left);
        heard_.right = faded(heard_.right);
    }
}

} // namespace vorbel
