#include "app/window/ContentView.h"

namespace vorbel {

namespace {

constexpr double pointerTurnDuration = 0.1; // s

AppLanguage storedLanguage(const UserDefaults& defaults) {
    const std::string code = defaults.text("boccia_language").value_or("ru");
    return languageFromRawValue(code).value_or(AppLanguage::ru);
}

} // namespace

ContentView::ContentView(const Platform& platform, UserDefaults& defaults)
    : platform_(platform),
      defaults_(defaults),
      gameLogic_(platform),
      selectedLanguage_(storedLanguage(defaults)) {
    observeMatch();
    refresh();
}

void ContentView::appear() {
    gameLogic_.startAimingLoop();
    gameLogic_.language = selectedLanguage_;
    // Started after the match's own tick, and hopping over the queue as that does, so it follows each tick.
    pulse_ = platform_.mainQueue.repeat(GameLogic::tickPeriod,
                                        lifetime_.whileAlive([this] { later([this] { emit ticked(); }); }));
}

template <typename T>
void ContentView::observe(Published<T>& value) {
    observations_.push_back(value.onWillChange([this](const T&) { scheduleRefresh(); }));
}

void ContentView::observeMatch() {
    observe(gameLogic_.message);
    observe(gameLogic_.aimState);
    observe(gameLogic_.phase);
    observe(gameLogic_.currentTurn);
    observe(gameLogic_.playerCountry);
    observe(gameLogic_.blueCountry);
    observe(gameLogic_.tournamentActive);
    observe(gameLogic_.tournamentRound);
    observe(gameLogic_.language);
    observe(gameLogic_.redBallsLeft);
    observe(gameLogic_.blueBallsLeft);
    observe(gameLogic_.redScore);
    observe(gameLogic_.blueScore);
    observe(gameLogic_.endHistory);
    observe(gameLogic_.currentEnd);
    observe(gameLogic_.aimAngle);
    observe(gameLogic_.aimPitch);
    observe(gameLogic_.aimPower);
}

// A value tells of its change before it changes, and changes come in bursts: one look at all of them
// afterwards.
void ContentView::scheduleRefresh() {
    if (std::exchange(refreshPending_, true) || refreshesHeld_) {
        return;
    }
    later([this] {
        if (!refreshesHeld_) {
            refresh();
        }
    });
}

void ContentView::holdRefreshes() {
    refreshesHeld_ = true;
}

void ContentView::releaseRefreshes() {
    refreshesHeld_ = false;
    if (refreshPending_) {
        refresh();
    }
}

void ContentView::refresh() {
    refreshPending_ = false;
    if (std::exchange(seenPhase_, gameLogic_.phase) != gameLogic_.phase &&
        gameLogic_.phase == GamePhase::gameOver) {
        recordFinishedMatch();
    }
    const std::pair<double, double> aim{gameLogic_.aimAngle, gameLogic_.aimPitch};
    if (std::exchange(shownAim_, aim) != aim) {
        updatePointer();
    }
    hud_.refresh(gameLogic_, selectedCountry_, selectedClass_);
    emit refreshed();
}

void ContentView::updatePointer() {
    if (const Node::Ptr pointer = gameLogic_.scene.root->findChild("pointer")) {
        const auto [angle, pitch] = shownAim_;
        gameLogic_.scene.animateOrientation(pointer, rotationFromEuler({pitch, -angle, 0}),
                                            pointerTurnDuration);
    }
}

void ContentView::later(MainQueue::Task change) {
    platform_.mainQueue.post(lifetime_.whileAlive(std::move(change)));
}

} // namespace vorbel
