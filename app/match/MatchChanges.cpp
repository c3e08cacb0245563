#include "app/match/MatchChanges.h"

#include <utility>

namespace vorbel {

template <typename T>
void MatchChanges::observe(const Published<T>& value) {
    observations_.push_back(value.onWillChange([this](const T&) { tellSoon(); }));
}

MatchChanges::MatchChanges(const GameLogic& match, MainQueue& queue) : queue_(queue) {
    observe(match.message);
    observe(match.aimState);
    observe(match.phase);
    observe(match.currentTurn);
    observe(match.playerCountry);
    observe(match.blueCountry);
    observe(match.tournamentActive);
    observe(match.tournamentRound);
    observe(match.language);
    observe(match.redBallsLeft);
    observe(match.blueBallsLeft);
    observe(match.redScore);
    observe(match.blueScore);
    observe(match.endHistory);
    observe(match.currentEnd);
    observe(match.aimAngle);
    observe(match.aimPitch);
    observe(match.aimPower);
}

void MatchChanges::tellSoon() {
    if (std::exchange(pending_, true) || held_) {
        return;
    }
    queue_.post(lifetime_.whileAlive([this] {
        if (!held_) {
            tell();
        }
    }));
}

void MatchChanges::hold() {
    held_ = true;
}

void MatchChanges::release() {
    held_ = false;
    if (pending_) {
        tell();
    }
}

void MatchChanges::tell() {
    pending_ = false;
    emit changed();
}

} // namespace vorbel
