#include "app/window/HeldKeys.h"

#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace vorbel {

namespace {

constexpr std::array keysThatMove{Qt::Key_Left, Qt::Key_Right,   Qt::Key_Up,     Qt::Key_Down,
                                  Qt::Key_Tab,  Qt::Key_Backtab, Qt::Key_PageUp, Qt::Key_PageDown};

bool moves(const QKeyEvent& event) {
    return std::ranges::find(keysThatMove, event.key()) != keysThatMove.end();
}

} // namespace

bool HeldKeys::eventFilter(QObject* /*receiver*/, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyRelease:
        lastRelease_ = strokeOf(static_cast<const QKeyEvent&>(*event));
        return false;
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress: {
        const auto& press = static_cast<const QKeyEvent&>(*event);
        const bool swallowed = isRepeat(press) && !moves(press);
        event->setAccepted(swallowed || event->isAccepted()); // accepted: the toolkit looks for no shortcut
        return swallowed;
    }
    default:
        return false;
    }
}

HeldKeys::Stroke HeldKeys::strokeOf(const QKeyEvent& event) {
    return {event.key(), event.nativeScanCode(), event.timestamp()};
}

bool HeldKeys::isRepeat(const QKeyEvent& press) const {
    return press.isAutoRepeat() || strokeOf(press) == lastRelease_;
}

} // namespace vorbel
