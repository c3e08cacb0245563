// Game controllers, adaptive controllers and switch interfaces, as the game sees them.
#pragma once

#include <cstdint>
#include <functional>

namespace vorbel {

// By its place on a controller, whatever is printed on it. The directions are those of the cross and of the left
// stick alike. The buttons of a device whose places nobody knows follow by their numbers, from `first` on.
enum class ControllerButton : std::uint8_t {
    south, // of the four at the right hand
    east,
    west,
    north,
    back,
    guide,
    start,
    leftStick,
    rightStick,
    leftShoulder,
    rightShoulder,
    up,
    down,
    left,
    right,
    misc,
    paddle1,
    paddle2,
    paddle3,
    paddle4,
    touchpad,
    leftTrigger,
    rightTrigger,
    first = 64,
    last = 255,
};

inline constexpr int placesOfButtons = static_cast<int>(ControllerButton::rightTrigger) + 1;

[[nodiscard]] constexpr bool isNumbered(ControllerButton button) {
    return button >= ControllerButton::first;
}

// Whether the number is one of a ControllerButton.
[[nodiscard]] constexpr bool isControllerButton(int number) {
    return (number >= 0 && number < placesOfButtons) ||
           (number >= static_cast<int>(ControllerButton::first) &&
            number <= static_cast<int>(ControllerButton::last));
}

// What is printed on the buttons: letters, shapes at the right hand, or letters with signs in the middle.
enum class ControllerFamily : std::uint8_t { letters, shapes, signs };

class Controllers {
public:
    // A button was pressed (true) or let go (false).
    using Listener = std::function<void(ControllerButton button, bool pressed)>;

    virtual ~Controllers() = default;

    // Tells what has happened since the last call. Devices may come and go between two calls; what was held on
    // one that went is told as let go.
    virtual void poll(const Listener& listener) = 0;

    [[nodiscard]] virtual bool isAnyConnected() const = 0;

    // Of the device that was pressed last; letters before that.
    [[nodiscard]] virtual ControllerFamily family() const = 0;
};

} // namespace vorbel
