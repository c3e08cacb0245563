#include "platform/controllers/ControllerNames.h"

#include <SDL.h>

namespace vorbel {

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
