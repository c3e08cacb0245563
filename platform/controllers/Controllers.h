// Game controllers, adaptive controllers and switch interfaces, as the game sees them.
#pragma once

#include <cstdint>
#include <functional>

namespace vorbel {

// By what they are for, whatever is printed on them. The directions are those of the cross and of the left
// stick alike.
enum class ControllerButton : std::uint8_t { accept, back, menu, other, left, right, up, down };

class Controllers {
public:
    // A button was pressed (true) or let go (false).
    using Listener = std::function<void(ControllerButton button, bool pressed)>;

    virtual ~Controllers() = default;

    // Tells what has happened since the last call. Devices may come and go between two calls; what was held on
    // one that went is told as let go.
    virtual void poll(const Listener& listener) = 0;

    [[nodiscard]] virtual bool isAnyConnected() const = 0;
};

} // namespace vorbel
