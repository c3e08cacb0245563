#include "app/controller/ControllerInput.h"

#include "app/window/ContentView.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWindow>

namespace vorbel {

namespace {

bool isDirection(ControllerButton button) {
    return button >= ControllerButton::left;
}

} // namespace

ControllerInput::ControllerInput(Controllers& controllers, ContentView& view, MainQueue& queue)
    : controllers_(controllers), view_(view), queue_(queue) {
    look();
}

void ControllerInput::look() {
    if (view_.options()->isOn(Option::controller)) {
        controllers_.poll([this](ControllerButton button, bool pressed) { handle(button, pressed); });
        repeat();
    } else {
        held_.reset();
    }
    const bool often = view_.options()->isOn(Option::controller) && controllers_.isAnyConnected();
    queue_.postAfter(often ? period : idlePeriod, lifetime_.whileAlive([this] { look(); }));
}

void ControllerInput::handle(ControllerButton button, bool pressed) {
    if (!pressed) {
        if (held_ == button) {
            held_.reset();
        }
        return;
    }
    if (view_.oneSwitch()->isOn()) {
        return view_.oneSwitch()->press();
    }
    if (isDirection(button)) {
        held_ = button;
        untilRepeat_ = repeatDelay;
    }
    press(button);
}

void ControllerInput::repeat() {
    if (held_ && (untilRepeat_ -= period) <= 0) {
        untilRepeat_ += repeatPeriod;
        press(*held_);
    }
}

void ControllerInput::press(ControllerButton button) {
    view_.openMenu().isHidden() ? pressInMatch(button) : pressInMenu(button);
}

void ControllerInput::pressInMatch(ControllerButton button) {
    Keyboard& keys = *view_.keyboard();
    switch (button) {
    case ControllerButton::accept:
        return keys.pressAction();
    case ControllerButton::back:
        return keys.pressTakeBack();
    case ControllerButton::menu:
        return view_.openMenu().setMenuScreen(MenuScreen::main);
    case ControllerButton::left:
        return keys.pressLeft();
    case ControllerButton::right:
        return keys.pressRight();
    case ControllerButton::up:
        return keys.pressUp();
    case ControllerButton::down:
        return keys.pressDown();
    case ControllerButton::other:
        return;
    }
}

void ControllerInput::pressInMenu(ControllerButton button) {
    switch (button) {
    case ControllerButton::accept:
        return emit keyPressed(Qt::Key_Return);
    case ControllerButton::back:
        return goBack();
    case ControllerButton::left:
    case ControllerButton::up:
        return emit keyPressed(Qt::Key_Backtab);
    case ControllerButton::right:
    case ControllerButton::down:
        return emit keyPressed(Qt::Key_Tab);
    case ControllerButton::menu:
    case ControllerButton::other:
        return;
    }
}

void ControllerInput::goBack() {
    switch (view_.openMenu().menuScreen()) {
    case MenuScreen::options:
        return view_.menu()->options()->close();
    case MenuScreen::leave:
        return view_.leaving()->cancel();
    case MenuScreen::main:
    case MenuScreen::matchResult: // leads on, not back
    case MenuScreen::hidden:
        return;
    default:
        return view_.menu()->back();
    }
}

void sendKey(QWindow& window, Qt::Key key) {
    const auto modifiers = key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier;
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers);
        QCoreApplication::sendEvent(&window, &event);
    }
}

} // namespace vorbel
