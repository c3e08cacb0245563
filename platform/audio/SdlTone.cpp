#include "platform/audio/SdlTone.h"

#include "platform/audio/MixerDevice.h"

#include <SDL_mixer.h>

#include <utility>

namespace vorbel {

SdlTone::SdlTone(std::shared_ptr<MixerDevice> device)
    : device_(std::move(device)), synthesizer_(MixerDevice::sampleRate) {}

SdlTone::~SdlTone() {
    if (added_) {
        Mix_UnregisterEffect(MIX_CHANNEL_POST, &SdlTone::mixed); // waits until the mixer's thread has left it
    }
}

void SdlTone::sound(double pitch, double pan) {
    synthesizer_.sound(pitch, pan);
    if (!std::exchange(added_, true)) {
        Mix_RegisterEffect(MIX_CHANNEL_POST, &SdlTone::mixed, nullptr, this);
    }
}

void SdlTone::mixed(int /*channel*/, void* samples, int size, void* tone) {
    static_cast<SdlTone*>(tone)->synthesizer_.add(
        {static_cast<float*>(samples), static_cast<std::size_t>(size) / sizeof(float)});
}

} // namespace vorbel
