#include "app/window/Keyboard.h"

#include "app/screen/OpenMenu.h"
#include "engine/GameLogic.h"

namespace vorbel {

Keyboard::Keyboard(GameLogic& match, const OpenMenu& menu) : match_(match), menu_(menu) {}

void Keyboard::pressAction() {
    act(&GameLogic::processInput);
}
void Keyboard::pressLeft() {
    arrow(&GameLogic::moveAimLeft, -aim::powerByHandStep);
}
void Keyboard::pressRight() {
    arrow(&GameLogic::moveAimRight, aim::powerByHandStep);
}
void Keyboard::pressUp() {
    arrow(&GameLogic::moveAimUp, aim::powerByHandStep);
}
void Keyboard::pressDown() {
    arrow(&GameLogic::moveAimDown, -aim::powerByHandStep);
}

void Keyboard::pressFineLeft() {
    turn(-aim::fineStep);
}
void Keyboard::pressFineRight() {
    turn(aim::fineStep);
}
void Keyboard::pressFineUp() {
    raise(aim::fineStep);
}
void Keyboard::pressFineDown() {
    raise(-aim::fineStep);
}
void Keyboard::pressTakeBack() {
    act(&GameLogic::takeBack);
}
void Keyboard::pressPageUp() {
    power(aim::powerByHandLeap);
}
void Keyboard::pressPageDown() {
    power(-aim::powerByHandLeap);
}

void Keyboard::pressEverything() {
    if (menu_.isHidden()) {
        emit everythingRequested();
    }
}

void Keyboard::pressMenu() {
    if (menu_.isHidden()) {
        emit menuRequested();
    }
}

void Keyboard::pressExitFullScreen() {
    emit exitFullScreenRequested();
}

void Keyboard::arrow(void (GameLogic::*aiming)(), double powerChange) {
    act(aiming);
    power(powerChange);
}

void Keyboard::turn(double angle) {
    if (menu_.isHidden()) {
        match_.turnAim(angle);
    }
}

void Keyboard::raise(double angle) {
    if (menu_.isHidden()) {
        match_.raiseAim(angle);
    }
}

void Keyboard::power(double change) {
    if (menu_.isHidden()) {
        match_.changePower(change);
    }
}

void Keyboard::act(void (GameLogic::*operation)()) {
    if (menu_.isHidden()) {
        (match_.*operation)();
    }
}

} // namespace vorbel
