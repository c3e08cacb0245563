#include "app/window/ContentView.h"

#include "app/shell/NotificationCenter.h"
#include "scene/Pointer.h"

#include <array>

namespace vorbel {

namespace {

constexpr double pointerTurnDuration = 0.1; // s

struct Request {
    std::string_view notification;
    MenuScreen screen;
};

// A new game is never started at once: the player starts it from the main menu.
constexpr std::array requests{Request{newGameRequested, MenuScreen::main},
                              Request{showRulesRequested, MenuScreen::rules},
                              Request{showAboutRequested, MenuScreen::about}};

} // namespace

ContentView::ContentView(const Platform& platform, UserDefaults& defaults, const MatchServices& ofMatch)
    : audio_(platform.audio),
      platform_{platform.mainQueue, platform.random, audio_, platform.resources},
      gameLogic_({ofMatch.queue, ofMatch.random, audio_, platform.resources}),
      settings_(gameLogic_, platform.mainQueue, defaults),
      options_(defaults),
      controls_(defaults),
      soundOptions_(audio_, options_),
      soundNotes_(audio_, options_, settings_, platform.mainQueue),
      leaving_(gameLogic_, options_, settings_, openMenu_),
      matchOptions_(gameLogic_, options_, openMenu_),
      catcher_(platform.mainQueue),
      oneSwitch_(gameLogic_, options_, openMenu_, settings_, catcher_, platform.mainQueue),
      career_(defaults, platform.random),
      recorder_(gameLogic_, career_, [this] { openMenu_.setMenuScreen(MenuScreen::matchResult); }),
      changes_(gameLogic_, platform.mainQueue),
      sightOptions_(gameLogic_.scene, options_, changes_),
      aimTone_(gameLogic_, options_, changes_, audio_, platform.mainQueue),
      keyboard_(gameLogic_, openMenu_),
      menu_(gameLogic_, settings_, openMenu_, career_, options_, controls_, hints_, catcher_,
            platform_.resources) {
    connect(&changes_, &MatchChanges::changed, this, &ContentView::refresh);
    connect(&hints_, &Hints::changed, this, &ContentView::refresh);
    connect(&keyboard_, &Keyboard::menuRequested, this,
            [this] { openMenu_.setMenuScreen(MenuScreen::main); });
    hud_.setWording(
        [this](const std::string& message) { return hints_.inForce(message, gameLogic_.language); });
    connect(&settings_, &PlayerSettings::choicesChanged, &changes_, &MatchChanges::tellSoon);
    refresh();
}

void ContentView::appear() {
    gameLogic_.startAimingLoop();
    settings_.handOverLanguage();
}

void ContentView::receiveNotifications(NotificationCenter& center) {
    notifications_.push_back(center.addObserver(showOptionsRequested, [this] { menu_.options()->open(); }));
    for (const Request& request : requests) {
        notifications_.push_back(center.addObserver(
            request.notification, [this, screen = request.screen] { openMenu_.setMenuScreen(screen); }));
    }
}

void ContentView::useController(ControllerFamily family) {
    hints_.useController(family);
    menu_.controls()->setFamily(family);
}

void ContentView::refresh() {
    const std::pair<double, double> aim{gameLogic_.aimAngle, gameLogic_.aimPitch};
    if (std::exchange(shownAim_, aim) != aim) {
        updatePointer();
    }
    hud_.refresh(gameLogic_, settings_.selectedCountry(), settings_.selectedClass());
    menu_.result()->refresh();
}

void ContentView::updatePointer() {
    if (const Node::Ptr pointer = gameLogic_.scene.root->findChild(arena::pointerName)) {
        const auto [angle, pitch] = shownAim_;
        gameLogic_.scene.animateOrientation(pointer, rotationFromEuler({pitch, -angle, 0}),
                                            pointerTurnDuration);
    }
}

} // namespace vorbel
