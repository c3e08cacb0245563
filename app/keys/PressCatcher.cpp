#include "app/keys/PressCatcher.h"

#include "app/keys/PressedKey.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <utility>

namespace vorbel {

void PressCatcher::awaitKey(std::function<void(int)> taken) {
    giveUp();
    taken_ = std::move(taken);
    if (QCoreApplication* const application = QCoreApplication::instance()) {
        application->installEventFilter(this); // the last one is the first to see an event
    }
    queue_.postAfter(patience, lifetime_.whileAlive([this, attempt = ++attempts_] {
        if (attempt == attempts_) {
            giveUp();
        }
    }));
    emit waitingChanged();
}

void PressCatcher::giveUp() {
    if (isWaiting()) {
        stop();
        emit waitingChanged();
    }
}

void PressCatcher::stop() {
    taken_ = nullptr;
    if (QCoreApplication* const application = QCoreApplication::instance()) {
        application->removeEventFilter(this);
    }
}

void PressCatcher::take(int key) {
    if (isModifier(key)) {
        return; // perhaps held on the way to the key that is meant
    }
    if (key == Qt::Key_Escape) {
        return giveUp();
    }
    const auto taken = taken_;
    stop();
    taken(key);
    emit waitingChanged();
}

bool PressCatcher::eventFilter(QObject* receiver, QEvent* event) {
    if (!receiver->isWindowType()) {
        return false;
    }
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        event->accept();
        return true;
    case QEvent::KeyPress:
        take(pressedKey(static_cast<const QKeyEvent&>(*event)));
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::TouchBegin:
        giveUp();
        return true;
    default:
        return false;
    }
}

} // namespace vorbel
