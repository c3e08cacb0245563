// A key that is held down is one action, however long it is held.
#pragma once

#include <QObject>

class QKeyEvent;

namespace vorbel {

// An event filter for the application. Players with tremor or a slow release hold keys for long; the repeats
// of a held key never reach the game, but for the keys that move something: the aim, the focus, a page.
//
// Not every desktop marks the repeats. On X11 a repeat may come as a release and a press that share their time
// stamp, which no hand can do.
class HeldKeys final : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    struct Stroke {
        int key = 0;
        quint32 scanCode = 0;
        quint64 time = 0; // ms, on the clock of the desktop

        bool operator==(const Stroke&) const = default;
    };

    [[nodiscard]] static Stroke strokeOf(const QKeyEvent& event);
    [[nodiscard]] bool isRepeat(const QKeyEvent& press) const;

    Stroke lastRelease_;
};

} // namespace vorbel
