// A window, as far as full screen is concerned.
#pragma once

#include <QRect>
#include <Qt>

#include <vector>

namespace vorbel {

// How the desktop decorates and treats a window.
struct WindowStyle {
    Qt::WindowFlags flags;
    Qt::WindowStates states;
    bool operator==(const WindowStyle&) const = default;
};

// All rectangles in screen points, the window's without its decoration.
class WindowFrame {
public:
    virtual ~WindowFrame() = default;

    [[nodiscard]] virtual bool isShown() const = 0; // on a screen, whether or not it has the keyboard
    [[nodiscard]] virtual QRect frame() const = 0;
    [[nodiscard]] virtual WindowStyle style() const = 0;

    // All of the window's screen, or of the main one when it has none; null when there is no screen.
    [[nodiscard]] virtual QRect screen() const = 0;
    [[nodiscard]] virtual std::vector<QRect> screens() const = 0;

    // The style that this window has while it covers a screen.
    [[nodiscard]] virtual WindowStyle coveringStyle() const = 0;

    virtual void setStyle(const WindowStyle& style) = 0;
    virtual void setFrame(const QRect& frame) = 0;
};

} // namespace vorbel
