#include "platform/audio/SdlFacts.h"

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

std::vector<std::string> controllerNames() {
    std::vector<std::string> names;
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    if (SDL_InitSubSystem(SDL_INIT_GAMECONTROLLER) == 0) {
        for (int i = 0; i < SDL_NumJoysticks(); ++i) {
            const char* name = SDL_JoystickNameForIndex(i);
            names.push_back(std::string(name == nullptr ? "unnamed" : name) +
                            (SDL_IsGameController(i) == SDL_TRUE ? "" : " (buttons unknown)"));
        }
        SDL_QuitSubSystem(SDL_INIT_GAMECONTROLLER);
    }
    return names;
}

} // namespace vorbel
