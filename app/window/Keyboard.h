// The keys of the game.
#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace vorbel {

class GameLogic;
class OpenMenu;

// While a menu is open the game's keys do nothing at all: they are not kept for later either.
class Keyboard final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of the content view")

public:
    // Both must outlive it.
    Keyboard(GameLogic& match, const OpenMenu& menu);

    Q_INVOKABLE void pressAction();
    Q_INVOKABLE void pressLeft();
    Q_INVOKABLE void pressRight();
    Q_INVOKABLE void pressUp();
    Q_INVOKABLE void pressDown();
    Q_INVOKABLE void pressExitFullScreen(); // acts in every state

signals:
    void exitFullScreenRequested();

private:
    void act(void (GameLogic::*operation)());

    GameLogic& match_;
    const OpenMenu& menu_;
};

} // namespace vorbel
