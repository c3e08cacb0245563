// Full screen without the desktop's own full-screen mode:
// the window loses its decoration and covers the screen.
#pragma once

#include "app/shell/WindowFrame.h"

#include <optional>

namespace vorbel {

class FullScreen {
public:
    [[nodiscard]] bool isOn() const { return saved_.has_value(); }

    // Leaves full screen when it is on; otherwise enters it, unless `exitOnly`. Without a window, with one
    // that is not shown, and on entering without a screen, it does nothing.
    void toggle(WindowFrame* window, bool exitOnly);

    // After the screen became another one or changed its size: covers it again while full screen is on, else keeps the
    // window in reach, whose screen may be gone. A maximised window is left to the desktop.
    void followScreen(WindowFrame& window) const;

private:
    struct Saved {
        QRect frame;
        WindowStyle style;
    };

    void enter(WindowFrame& window);
    void leave(WindowFrame& window);

    std::optional<Saved> saved_; // how the window was; present exactly while full screen is on
};

// The frame itself while one can get hold of its upper edge on any of the screens; else moved, and made
// smaller where it must be, into `screen`.
[[nodiscard]] QRect keptInReach(const QRect& frame, const std::vector<QRect>& screens, const QRect& screen);

} // namespace vorbel
