// The whole game with a controller.
#pragma once

#include "app/keys/GameAction.h"
#include "platform/controllers/Controllers.h"
#include "platform/runloop/Lifetime.h"
#include "platform/runloop/MainQueue.h"

#include <QObject>

#include <optional>

class QWindow;

namespace vorbel {

class ContentView;

// Each button does what the player's controls say; one of a device whose places nobody knows, and which they do not
// name, accepts, but for the second, which takes back. In a menu the directions lead from control to control, accept
// presses, and take back goes back. What moves something repeats while it is held. With one switch every button is
// the switch. Looks at the controllers often only while there are any. Main thread only.
class ControllerInput final : public QObject {
    Q_OBJECT

public:
    // How long, in seconds, until it looks again: without a controller, and with one.
    static constexpr double idlePeriod = 0.5;
    static constexpr double period = 0.012;
    static constexpr double repeatDelay = 0.5; // s, of a held direction
    static constexpr double repeatPeriod = 0.12;

    // All three must outlive it.
    ControllerInput(Controllers& controllers, ContentView& view, MainQueue& queue);

signals:
    void keyPressed(Qt::Key key); // in a menu: this key would do the same

private:
    void look();
    void handle(ControllerButton button, bool pressed);
    void repeat();
    void press(GameAction action);
    void pressInMatch(GameAction action);
    void pressInMenu(GameAction action);
    [[nodiscard]] std::optional<GameAction> actionOf(ControllerButton button) const;
    void goBack();

    Controllers& controllers_;
    ContentView& view_;
    MainQueue& queue_;
    std::optional<ControllerButton> held_; // one that repeats
    double untilRepeat_ = 0;               // s
    Lifetime lifetime_;
};

// The key, pressed and let go, for whatever has the focus in the window.
void sendKey(QWindow& window, Qt::Key key);

} // namespace vorbel
