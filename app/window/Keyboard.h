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
    // For those who have turned them on.
    Q_INVOKABLE void pressFineLeft();
    Q_INVOKABLE void pressFineRight();
    Q_INVOKABLE void pressFineUp();
    Q_INVOKABLE void pressFineDown();
    Q_INVOKABLE void pressTakeBack();
    Q_INVOKABLE void pressPageUp(); // only a power that is set by hand
    Q_INVOKABLE void pressPageDown();
    Q_INVOKABLE void pressEverything(); // asks where everything lies
    Q_INVOKABLE void pressMenu();       // asks for the main menu

    Q_INVOKABLE void pressExitFullScreen(); // acts in every state

signals:
    void exitFullScreenRequested();
    void everythingRequested();
    void menuRequested();

private:
    void act(void (GameLogic::*operation)());
    void turn(double angle);   // rad, of the aim
    void raise(double angle);  // rad
    void power(double change); // percent, if it is set by hand
    // An arrow key aims, or changes a power that is set by hand.
    void arrow(void (GameLogic::*aiming)(), double powerChange);

    GameLogic& match_;
    const OpenMenu& menu_;
};

} // namespace vorbel
