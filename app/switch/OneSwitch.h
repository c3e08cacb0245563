// The whole game with one switch, by option.
#pragma once

#include "app/switch/SwitchMenu.h"
#include "app/switch/SwitchThrow.h"
#include "platform/runloop/Lifetime.h"
#include "platform/runloop/MainQueue.h"

#include <QObject>
#include <QRectF>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

class QKeyEvent;

namespace vorbel {

class OpenMenu;
class PlayerSettings;
class PressCatcher;

// The switch is Space, Return, a key of the player's own or a click anywhere; while the option is on they do nothing
// else. It is an event
// filter for the application, which the repeats of a held key must not reach. Main thread only.
class OneSwitch final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of the content view")

    Q_PROPERTY(bool on READ isOn NOTIFY changed FINAL)
    Q_PROPERTY(QRectF frame READ frame NOTIFY changed FINAL)
    Q_PROPERTY(QString prompt READ prompt NOTIFY changed FINAL)

public:
    // All six must outlive it.
    OneSwitch(GameLogic& match, const Options& options, OpenMenu& openMenu, const PlayerSettings& settings,
              PressCatcher& catcher, MainQueue& queue);

    // The window whose menus are walked through, which must outlive this; without it only throws are made.
    void setWindow(QQuickWindow& window) { menu_.emplace(window); }

    void press(); // ignored too soon after the last

    [[nodiscard]] bool isOn() const;
    [[nodiscard]] bool isSwitch(int key) const; // while the option is on
    [[nodiscard]] QRectF frame() const;         // around what a press would take, in the window; may be empty
    [[nodiscard]] QString prompt() const;       // what a press would do; empty where that is seen
    [[nodiscard]] QString spoken() const; // the same for who does not see; empty where the focus says it

    bool eventFilter(QObject* receiver, QEvent* event) override;

signals:
    void changed();

private:
    void followOptions();
    void beat();
    void rest();
    void act();
    [[nodiscard]] bool isMenuOpen() const;
    [[nodiscard]] bool isSwitchKey(const QEvent& event) const;

    const Options& options_;
    OpenMenu& openMenu_;
    const PlayerSettings& settings_;
    PressCatcher& catcher_;
    MainQueue& queue_;
    SwitchThrow throw_;
    std::optional<SwitchMenu> menu_;
    Subscription timer_;
    int period_ = 0; // ms, of the timer; 0 while there is none
    int beats_ = 0;
    bool resting_ = false;
    bool acting_ = false; // what it presses itself is no switch
    Lifetime lifetime_;
};

} // namespace vorbel
