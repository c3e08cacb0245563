#include "app/window/Keyboard.h"

#include "app/menu/OpenMenu.h"
#include "engine/GameLogic.h"

namespace vorbel {

Keyboard::Keyboard(GameLogic& match, const OpenMenu& menu) : match_(match), menu_(menu) {}

void Keyboard::pressAction() {
    act(&GameLogic::processInput);
}
void Keyboard::pressLeft() {
    act(&GameLogic::moveAimLeft);
}
void Keyboard::pressRight() {
    act(&GameLogic::moveAimRight);
}
void Keyboard::pressUp() {
    act(&GameLogic::moveAimUp);
}
void Keyboard::pressDown() {
    act(&GameLogic::moveAimDown);
}
void Keyboard::pressExitFullScreen() {
    emit exitFullScreenRequested();
}

void Keyboard::act(void (GameLogic::*operation)()) {
    if (menu_.isHidden()) {
        (match_.*operation)();
    }
}

} // namespace vorbel
