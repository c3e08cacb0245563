// More time and smaller steps for the human thrower.
#include "engine/GameLogic.h"
#include "engine/Messages.h"

#include <algorithm>

namespace vorbel {

void GameLogic::setPowerPace(double pace) {
    if (pace != state_.powerPace) {
        tell(MatchAction::Kind::pace, pace);
        state_.powerPace = std::clamp(pace, 0.0, 1.0);
    }
}

bool GameLogic::humanSetsPower() const {
    return !isCurrentTurnAI() && aimState == AimState::aimingPower && powerIsSetByHand();
}

void GameLogic::changePower(double percent) {
    if (humanSetsPower()) {
        tell(MatchAction::Kind::power, percent);
        state_.aimPower = std::clamp(aimPower + percent, aim::lowestPower, aim::highestPower);
    }
}

void GameLogic::takeBack() {
    if (isCurrentTurnAI()) {
        return;
    }
    tell(MatchAction::Kind::takeBack);
    if (aimState == AimState::aimingPower) {
        state_.aimState = AimState::aimingAngle;
        state_.aimPower = aim::startPower;
        message = messages::aimingHint(language);
    } else if (aimState == AimState::aimingAngle) {
        dropAim();
        resetAim();
        message = messages::turn(language, currentTurn);
        triggerAIIfNeeded();
    }
}

} // namespace vorbel
