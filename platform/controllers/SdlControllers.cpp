#include "platform/controllers/SdlControllers.h"

#include <SDL.h>

#include <algorithm>
#include <utility>

namespace vorbel {

namespace {

// Of a stick's way to its end, 32767: pressed beyond the one, let go below the other, so that a hand that
// trembles between them presses nothing twice.
constexpr int pressedBeyond = 18'000;
constexpr int releasedBelow = 12'000;

// SDL counts the places as the game does.
constexpr bool isAt(ControllerButton button, SDL_GameControllerButton place) {
    return static_cast<int>(button) == place;
}
static_assert(isAt(ControllerButton::south, SDL_CONTROLLER_BUTTON_A) &&
              isAt(ControllerButton::north, SDL_CONTROLLER_BUTTON_Y) &&
              isAt(ControllerButton::start, SDL_CONTROLLER_BUTTON_START) &&
              isAt(ControllerButton::rightShoulder, SDL_CONTROLLER_BUTTON_RIGHTSHOULDER) &&
              isAt(ControllerButton::up, SDL_CONTROLLER_BUTTON_DPAD_UP) &&
              isAt(ControllerButton::right, SDL_CONTROLLER_BUTTON_DPAD_RIGHT) &&
              isAt(ControllerButton::touchpad, SDL_CONTROLLER_BUTTON_TOUCHPAD));

ControllerButton numbered(Uint8 button) {
    const int number = static_cast<int>(ControllerButton::first) + button;
    return static_cast<ControllerButton>(std::min(number, static_cast<int>(ControllerButton::last)));
}

ControllerFamily familyOf(SDL_GameControllerType type) {
    switch (type) {
    case SDL_CONTROLLER_TYPE_PS3:
    case SDL_CONTROLLER_TYPE_PS4:
    case SDL_CONTROLLER_TYPE_PS5:
        return ControllerFamily::shapes;
    case SDL_CONTROLLER_TYPE_NINTENDO_SWITCH_PRO:
        return ControllerFamily::signs;
    default:
        return ControllerFamily::letters;
    }
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
    [[nodiscard]] ControllerFamily family() const { return familyOf(SDL_GameControllerGetType(controller_)); }
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
        return tell(event.cbutton.which, static_cast<ControllerButton>(event.cbutton.button),
                    event.cbutton.state == SDL_PRESSED, listener);
    case SDL_JOYBUTTONDOWN:
    case SDL_JOYBUTTONUP:
        if (!isKnown(event.jbutton.which)) {
            tell(event.jbutton.which, numbered(event.jbutton.button), event.jbutton.state == SDL_PRESSED,
                 listener);
        }
        return;
    case SDL_CONTROLLERAXISMOTION:
        if (event.caxis.axis <= SDL_CONTROLLER_AXIS_LEFTY) {
            move(event.caxis.which, event.caxis.axis == SDL_CONTROLLER_AXIS_LEFTY, event.caxis.value,
                 listener);
        } else if (event.caxis.axis >= SDL_CONTROLLER_AXIS_TRIGGERLEFT) {
            pull(event.caxis.which,
                 event.caxis.axis == SDL_CONTROLLER_AXIS_TRIGGERLEFT ? ControllerButton::leftTrigger
                                                                     : ControllerButton::rightTrigger,
                 event.caxis.value, listener);
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
        if (const auto device = devices_.find(id); device != devices_.end()) {
            family_ = device->second->family();
        }
        listener(button, pressed);
    }
}

void SdlControllers::move(int id, bool upright, int position, const Listener& listener) {
    const ControllerButton negative = upright ? ControllerButton::up : ControllerButton::left;
    const ControllerButton positive = upright ? ControllerButton::down : ControllerButton::right;
    pull(id, negative, -position, listener);
    pull(id, positive, position, listener);
}

void SdlControllers::pull(int id, ControllerButton trigger, int way, const Listener& listener) {
    if (way > pressedBeyond || way < releasedBelow) {
        tell(id, trigger, way > pressedBeyond, listener);
    }
}

} // namespace vorbel
