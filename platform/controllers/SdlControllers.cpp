#include "platform/controllers/SdlControllers.h"

#include <SDL.h>

#include <utility>

namespace vorbel {

namespace {

// Of a stick's way to its end, 32767: pressed beyond the one, let go below the other, so that a hand that
// trembles between them presses nothing twice.
constexpr int pressedBeyond = 18'000;
constexpr int releasedBelow = 12'000;

ControllerButton known(Uint8 button) {
    switch (button) {
    case SDL_CONTROLLER_BUTTON_A:
        return ControllerButton::accept;
    case SDL_CONTROLLER_BUTTON_B:
        return ControllerButton::back;
    case SDL_CONTROLLER_BUTTON_START:
        return ControllerButton::menu;
    case SDL_CONTROLLER_BUTTON_DPAD_LEFT:
        return ControllerButton::left;
    case SDL_CONTROLLER_BUTTON_DPAD_RIGHT:
        return ControllerButton::right;
    case SDL_CONTROLLER_BUTTON_DPAD_UP:
        return ControllerButton::up;
    case SDL_CONTROLLER_BUTTON_DPAD_DOWN:
        return ControllerButton::down;
    default:
        return ControllerButton::other;
    }
}

ControllerButton unknown(Uint8 button) {
    return button == 1 ? ControllerButton::back : ControllerButton::accept;
}

} // namespace

// Open while it lives.
class SdlControllers::Device {
public:
    explicit Device(int place)
        : controller_(SDL_IsGameController(place) != 0 ? SDL_GameControllerOpen(place) : nullptr),
          joystick_(controller_ == nullptr ? SDL_JoystickOpen(place) : nullptr) {}
    Device(const Device&) = delete;
    Device& operator=(const Device&) = delete;
    ~Device() {
        if (controller_ != nullptr) {
            SDL_GameControllerClose(controller_);
        }
        if (joystick_ != nullptr) {
            SDL_JoystickClose(joystick_);
        }
    }

    [[nodiscard]] bool isKnown() const { return controller_ != nullptr; }
    [[nodiscard]] int id() const {
        return SDL_JoystickInstanceID(isKnown() ? SDL_GameControllerGetJoystick(controller_) : joystick_);
    }

private:
    SDL_GameController* controller_;
    SDL_Joystick* joystick_;
};

SdlControllers::SdlControllers() {
    // SDL has no window that could have the focus.
    SDL_SetHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1");
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_InitSubSystem(SDL_INIT_GAMECONTROLLER);
}

SdlControllers::~SdlControllers() {
    devices_.clear();
    SDL_QuitSubSystem(SDL_INIT_GAMECONTROLLER);
}

void SdlControllers::poll(const Listener& listener) {
    SDL_PumpEvents();
    SDL_Event event;
    while (SDL_PeepEvents(&event, 1, SDL_GETEVENT, SDL_FIRSTEVENT, SDL_LASTEVENT) > 0) {
        handle(event, listener);
    }
}

void SdlControllers::handle(const SDL_Event& event, const Listener& listener) {
    const auto isKnown = [this](int id) {
        const auto device = devices_.find(id);
        return device != devices_.end() && device->second->isKnown();
    };
    switch (event.type) {
    case SDL_JOYDEVICEADDED:
        return connect(event.jdevice.which);
    case SDL_JOYDEVICEREMOVED:
        return disconnect(event.jdevice.which, listener);
    case SDL_CONTROLLERBUTTONDOWN:
    case SDL_CONTROLLERBUTTONUP:
        return tell(event.cbutton.which, known(event.cbutton.button), event.cbutton.state == SDL_PRESSED,
                    listener);
    case SDL_JOYBUTTONDOWN:
    case SDL_JOYBUTTONUP:
        if (!isKnown(event.jbutton.which)) {
            tell(event.jbutton.which, unknown(event.jbutton.button), event.jbutton.state == SDL_PRESSED,
                 listener);
        }
        return;
    case SDL_CONTROLLERAXISMOTION:
        if (event.caxis.axis <= SDL_CONTROLLER_AXIS_LEFTY) {
            move(event.caxis.which, event.caxis.axis == SDL_CONTROLLER_AXIS_LEFTY, event.caxis.value,
                 listener);
        }
        return;
    case SDL_JOYAXISMOTION:
        if (!isKnown(event.jaxis.which) && event.jaxis.axis <= 1) {
            move(event.jaxis.which, event.jaxis.axis == 1, event.jaxis.value, listener);
        }
        return;
    default:
        return;
    }
}

void SdlControllers::connect(int place) {
    auto device = std::make_shared<Device>(place);
    if (const int id = device->id(); id >= 0) {
        devices_[id] = std::move(device);
    }
}

void SdlControllers::disconnect(int id, const Listener& listener) {
    for (const ControllerButton button : std::exchange(held_[id], {})) {
        listener(button, false);
    }
    held_.erase(id);
    devices_.erase(id);
}

void SdlControllers::tell(int id, ControllerButton button, bool pressed, const Listener& listener) {
    const bool changed = pressed ? held_[id].insert(button).second : held_[id].erase(button) > 0;
    if (changed) {
        listener(button, pressed);
    }
}

void SdlControllers::move(int id, bool upright, int position, const Listener& listener) {
    const ControllerButton negative = upright ? ControllerButton::up : ControllerButton::left;
    const ControllerButton positive = upright ? ControllerButton::down : ControllerButton::right;
    for (const auto& [button, way] : {std::pair(negative, -position), std::pair(positive, position)}) {
        if (way > pressedBeyond || way < releasedBelow) {
            tell(id, button, way > pressedBeyond, listener);
        }
    }
}

} // namespace vorbel
