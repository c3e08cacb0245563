// The human thrower's side of a throw: the tick, the aiming keys and the one action key.
#include "engine/GameLogic.h"
#include "engine/Messages.h"

namespace vorbel {

void GameLogic::startAimingLoop() {
    clock_.start([this] { tick(); });
}

void GameLogic::stopAimingLoop() {
    clock_.stop();
}

// Physics time is tick time: a throw depends on its aim alone, never on the frame rate.
void GameLogic::tick() {
    scene.advanceAnimations(tickPeriod);
    physicsWorld_.step(tickPeriod);
    updateAiming();
}

void GameLogic::updateAiming() {
    if (aimState == AimState::thrown) {
        checkPhysics();
    } else if (aimState == AimState::aimingPower) {
        state_.aimPower += aim::powerStep(playerClass) * state_.powerPace * state_.powerDirection;
        if (aim::turnsRound(aimPower)) {
            state_.powerDirection = -state_.powerDirection;
        }
    }
}

void GameLogic::moveAimLeft() {
    turnAim(-aim::angleStep);
}
void GameLogic::moveAimRight() {
    turnAim(aim::angleStep);
}
void GameLogic::moveAimUp() {
    raiseAim(aim::pitchStep);
}
void GameLogic::moveAimDown() {
    raiseAim(-aim::pitchStep);
}

bool GameLogic::humanSetsAngle() const {
    return !isCurrentTurnAI() && aimState == AimState::aimingAngle;
}

void GameLogic::turnAim(double angle) {
    if (humanSetsAngle()) {
        tell(MatchAction::Kind::turn, angle);
        state_.aimAngle = aim::clampAngle(aimAngle + angle);
    }
}

void GameLogic::raiseAim(double angle) {
    if (humanSetsAngle() && aim::mayRaise(playerClass)) {
        tell(MatchAction::Kind::raise, angle);
        state_.aimPitch = aim::clampPitch(aimPitch + angle);
    }
}

void GameLogic::processInput() {
    tell(MatchAction::Kind::press);
    if (phase == GamePhase::gameOver) {
        tournamentActive ? advanceTournament() : resetMatch();
    } else if (phase == GamePhase::endOver) {
        state_.currentEnd += 1;
        clearField();
        startNewEnd();
    } else if (!isCurrentTurnAI()) {
        advanceHumanThrow();
    }
}

void GameLogic::advanceHumanThrow() {
    switch (aimState) {
    case AimState::idle:
        state_.aimState = AimState::aimingAngle;
        message = messages::aimingHint(language);
        balls_.showPointer(true);
        break;
    case AimState::aimingAngle:
        clock_.cancel(); // an aim that the computer had begun is the player's from here on
        state_.aimState = AimState::aimingPower;
        message = powerIsSetByHand() ? messages::powerByKeys(language) : messages::lockPower(language);
        break;
    case AimState::aimingPower:
        beginThrow();
        if (aim::hasReleaseError(playerClass)) {
            const double error = platform_.random.uniform(-aim::releaseError, aim::releaseError);
            state_.aimAngle = aim::clampAngle(aimAngle + error);
        }
        releaseBall();
        break;
    case AimState::thrown:
        break;
    }
}

} // namespace vorbel
