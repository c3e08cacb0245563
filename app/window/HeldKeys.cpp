#include "app/window/HeldKeys.h"

#include "app/keys/PressedKey.h"

#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace vorbel {

namespace {

constexpr std::array keysThatMove{Qt::Key_Left, Qt::Key_Right,   Qt::Key_Up,     Qt::Key_Down,
                                  Qt::Key_Tab,  Qt::Key_Backtab, Qt::Key_PageUp, Qt::Key_PageDown};

} // namespace

bool HeldKeys::holdBack(QEvent& event) {
    switch (event.type()) {
    case QEvent::KeyRelease:
        if (const Stroke stroke = strokeOf(static_cast<const QKeyEvent&>(event)); stroke.time != 0) {
            lastRelease_ = stroke;
        }
        return false;
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress: {
        const auto& press = static_cast<const QKeyEvent&>(event);
        const bool heldBack = isRepeat(press) && !moves_(pressedKey(press));
        event.setAccepted(heldBack || event.isAccepted()); // accepted: the toolkit looks for no shortcut
        return heldBack;
    }
    default:
        return false;
    }
}

HeldKeys::Stroke HeldKeys::strokeOf(const QKeyEvent& event) {
    return {event.key(), event.nativeScanCode(), event.timestamp()};
}

bool HeldKeys::movesInMenus(int key) {
    return std::ranges::find(keysThatMove, key) != keysThatMove.end();
}

bool HeldKeys::isRepeat(const QKeyEvent& press) const {
    const Stroke stroke = strokeOf(press);
    return press.isAutoRepeat() || (stroke.time != 0 && stroke == lastRelease_);
}

} // namespace vorbel
