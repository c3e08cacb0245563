#include "app/keys/PressCatcher.h"

#include "app/keys/PressedKey.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <utility>

namespace vorbel {

void PressCatcher::awaitKey(std::function<void(int)> taken) {
    wait(std::move(taken), false);
}

void PressCatcher::awaitButton(std::function<void(int)> taken) {
    wait(std::move(taken), true);
}

void PressCatcher::wait(std::function<void(int)> taken, bool forButton) {
    giveUp();
    taken_ = std::move(taken);
    forButton_ = forButton;
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

void PressCatcher::pressKey(int key) {
    if (key == Qt::Key_Escape) {
        giveUp();
    } else if (!forButton_ && !isModifier(key)) { // which may be held on the way to the key that is meant
        take(key);
    }
}

void PressCatcher::pressButton(int button) {
    if (forButton_) {
        take(button);
    } else {
        giveUp();
    }
}

void PressCatcher::take(int press) {
    const auto taken = taken_;
    stop();
    taken(press);
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
        pressKey(pressedKey(static_cast<const QKeyEvent&>(*event)));
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
