// What the game view does when the shell's menu asks for something.
#include "app/shell/NotificationCenter.h"
#include "app/window/ContentView.h"

#include <array>

namespace vorbel {

namespace {

struct Request {
    std::string_view notification;
    MenuScreen screen;
};

// A new game is never started at once: the player starts it from the main menu.
constexpr std::array requests{Request{newGameRequested, MenuScreen::main},
                              Request{showRulesRequested, MenuScreen::rules},
                              Request{showAboutRequested, MenuScreen::about}};

} // namespace

void ContentView::receiveNotifications(NotificationCenter& center) {
    for (const Request& request : requests) {
        observations_.push_back(center.addObserver(
            request.notification, [this, screen = request.screen] { setMenuScreen(screen); }));
    }
}

} // namespace vorbel
