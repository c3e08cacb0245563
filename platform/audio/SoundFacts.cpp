#include "platform/audio/SoundFacts.h"

#include "platform/audio/MixerDevice.h"

#include <SDL.h>

namespace vorbel {

namespace {

std::string sdlVersion() {
    SDL_version version{};
    SDL_GetVersion(&version);
    return "SDL " + std::to_string(version.major) + "." + std::to_string(version.minor) + "." +
           std::to_string(version.patch);
}

std::string devices() {
    std::string names;
    for (int i = 0; i < SDL_GetNumAudioDevices(0); ++i) {
        const char* name = SDL_GetAudioDeviceName(i, 0);
        names += (names.empty() ? "" : ", ") + std::string(name == nullptr ? "unnamed" : name);
    }
    return names.empty() ? "no device" : names;
}

} // namespace

std::string soundFacts() {
    const auto device = MixerDevice::open(); // as the game does
    const char* system = device ? SDL_GetCurrentAudioDriver() : nullptr;
    const bool heard = system != nullptr && std::string(system) != "dummy"; // which stands in for a device
    return sdlVersion() + ", " +
           (heard ? "through " + std::string(system) + ": " + devices() : "no device is reached");
}

} // namespace vorbel
