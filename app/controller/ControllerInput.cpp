#include "app/controller/ControllerInput.h"

#include "app/window/ContentView.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWindow>

namespace vorbel {

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

std::optional<GameAction> ControllerInput::actionOf(ControllerButton button) const {
    constexpr auto second = static_cast<ControllerButton>(static_cast<int>(ControllerButton::first) + 1);
    const auto given =
        view_.controls()->of(GameControls::Device::controller).actionOf(static_cast<int>(button));
    return given || !isNumbered(button) ? given
           : button == second           ? GameAction::takeBack
                                        : GameAction::accept;
}

void ControllerInput::handle(ControllerButton button, bool pressed) {
    if (!pressed) {
        if (held_ == button) {
            held_.reset();
        }
        return;
    }
    view_.useController(controllers_.family());
    if (view_.catcher().isWaiting()) {
        return view_.catcher().pressButton(static_cast<int>(button));
    }
    if (view_.oneSwitch()->isOn()) {
        return view_.oneSwitch()->press();
    }
    if (const auto action = actionOf(button)) {
        if (rowOf(*action).repeats) {
            held_ = button;
            untilRepeat_ = repeatDelay;
        }
        press(*action);
    }
}

void ControllerInput::repeat() {
    if (held_ && (untilRepeat_ -= period) <= 0) {
        untilRepeat_ += repeatPeriod;
        if (const auto action = actionOf(*held_)) {
            press(*action);
        }
    }
}

void ControllerInput::press(GameAction action) {
    if (action == GameAction::mute) {
        view_.options()->toggleMute();
    } else if (view_.openMenu().isHidden()) {
        pressInMatch(action);
    } else {
        pressInMenu(action);
        view_.useController(controllers_.family()); // though a menu was sent a key
    }
}

void ControllerInput::pressInMatch(GameAction action) {
    Keyboard& keys = *view_.keyboard();
    switch (action) {
    case GameAction::left:
        return keys.pressLeft();
    case GameAction::right:
        return keys.pressRight();
    case GameAction::up:
        return keys.pressUp();
    case GameAction::down:
        return keys.pressDown();
    case GameAction::accept:
        return keys.pressAction();
    case GameAction::takeBack:
        return keys.pressTakeBack();
    case GameAction::morePower:
        return keys.pressPageUp();
    case GameAction::lessPower:
        return keys.pressPageDown();
    case GameAction::everything:
        return keys.pressEverything();
    case GameAction::menu:
        return keys.pressMenu();
    case GameAction::mute:
        return;
    }
}

void ControllerInput::pressInMenu(GameAction action) {
    switch (action) {
    case GameAction::accept:
        return emit keyPressed(Qt::Key_Return);
    case GameAction::takeBack:
        return goBack();
    case GameAction::left:
    case GameAction::up:
        return emit keyPressed(Qt::Key_Backtab);
    case GameAction::right:
    case GameAction::down:
        return emit keyPressed(Qt::Key_Tab);
    case GameAction::morePower:
        return emit keyPressed(Qt::Key_PageUp);
    case GameAction::lessPower:
        return emit keyPressed(Qt::Key_PageDown);
    case GameAction::everything:
    case GameAction::mute:
    case GameAction::menu:
        return;
    }
}

void ControllerInput::goBack() {
    switch (view_.openMenu().menuScreen()) {
    case MenuScreen::options:
        return view_.menu()->options()->close();
    case MenuScreen::controls:
        return view_.menu()->controls()->close();
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
