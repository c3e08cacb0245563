#include "app/options/SoundOptions.h"

namespace vorbel {

SoundOptions::SoundOptions(AdjustableAudio& audio, const Options& options)
    : audio_(audio), options_(options) {
    connect(&options_, &Options::changed, this, &SoundOptions::handOver);
    handOver();
}

void SoundOptions::handOver() {
    audio_.setPlayerVolume(volume(Option::crowdVolume));
    audio_.setSoundVolume(volume(Option::effectVolume));
    audio_.placeSounds(options_.isOn(Option::hitPlaces));
}

float SoundOptions::volume(Option option) const {
    constexpr float percent = 100;
    return options_.isOn(Option::mute) ? 0 : static_cast<float>(options_.value(option)) / percent;
}

} // namespace vorbel
