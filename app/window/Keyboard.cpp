// The keys of the game. While a menu is open they are swallowed.
#include "app/window/ContentView.h"

namespace vorbel {

void ContentView::pressAction() {
    act(&GameLogic::processInput);
}
void ContentView::pressLeft() {
    act(&GameLogic::moveAimLeft);
}
void ContentView::pressRight() {
    act(&GameLogic::moveAimRight);
}
void ContentView::pressUp() {
    act(&GameLogic::moveAimUp);
}
void ContentView::pressDown() {
    act(&GameLogic::moveAimDown);
}
void ContentView::pressExitFullScreen() {
    emit exitFullScreenRequested();
}

void ContentView::act(void (GameLogic::*operation)()) {
    if (refreshPending_) {
        refresh(); // a match that has just ended is recorded before the key can start the next one
    }
    if (menuScreen_ == MenuScreen::hidden) {
        (gameLogic_.*operation)();
    }
}

} // namespace vorbel
