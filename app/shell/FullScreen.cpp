#include "app/shell/FullScreen.h"

#include <algorithm>
#include <utility>

namespace vorbel {

namespace {

// What a desktop puts above a window to move it by, and how much of its length a hand needs, in points.
constexpr int titleBarHeight = 40;
constexpr int gripWidth = 100;

QRect movedInto(const QRect& frame, const QRect& screen) {
    const QRect room = screen.adjusted(0, titleBarHeight, 0, 0);
    const QSize size = frame.size().boundedTo(room.size());
    const int left = std::clamp(frame.left(), room.left(), room.left() + room.width() - size.width());
    const int top = std::clamp(frame.top(), room.top(), room.top() + room.height() - size.height());
    return {QPoint(left, top), size};
}

} // namespace

void FullScreen::toggle(WindowFrame* window, bool exitOnly) {
    if (window == nullptr || !window->isShown()) {
        return;
    }
    if (isOn()) {
        leave(*window);
    } else if (!exitOnly) {
        enter(*window);
    }
}

void FullScreen::enter(WindowFrame& window) {
    const QRect screen = window.screen();
    if (screen.isNull()) {
        return;
    }
    saved_ = {window.frame(), window.style()};
    window.setStyle(window.coveringStyle());
    window.setFrame(screen);
}

void FullScreen::leave(WindowFrame& window) {
    const Saved saved = *std::exchange(saved_, std::nullopt);
    // To move a maximised window ends that state, so it comes last.
    window.setStyle({saved.style.flags, Qt::WindowNoState});
    window.setFrame(keptInReach(saved.frame, window.screens(), window.screen()));
    window.setStyle(saved.style);
}

void FullScreen::followScreen(WindowFrame& window) const {
    const QRect screen = window.screen();
    if (screen.isNull()) {
        return;
    }
    if (isOn()) {
        window.setFrame(screen);
    } else if (const QRect kept = keptInReach(window.frame(), window.screens(), screen);
               kept != window.frame() && window.isShown() && window.style().states == Qt::WindowNoState) {
        window.setFrame(kept);
    }
}

QRect keptInReach(const QRect& frame, const std::vector<QRect>& screens, const QRect& screen) {
    const QRect upperEdge(frame.left(), frame.top(), frame.width(), titleBarHeight);
    const bool inReach = std::ranges::any_of(screens, [&upperEdge](const QRect& each) {
        const QRect seen = each & upperEdge;
        return seen.width() >= gripWidth && seen.height() >= titleBarHeight / 2;
    });
    return inReach || screen.isNull() ? frame : movedInto(frame, screen);
}

} // namespace vorbel
