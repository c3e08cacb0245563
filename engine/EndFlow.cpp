// The referee of an end: whether the jack is valid, who throws next, when the end is over.
#include "engine/GameLogic.h"
#include "engine/Messages.h"

namespace vorbel {

void GameLogic::handleTurnTransition() {
    if (phase == GamePhase::throwingJack) {
        ++state_.jackThrowAttempts;
        const auto jack = balls_.position().jack;
        // Only the first jack of an end is judged: the second one counts wherever it lies.
        if (state_.jackThrowAttempts == 1 && jack && !isValidJack(*jack)) {
            passJackToOtherSide();
            return;
        }
        state_.phase = GamePhase::playing; // and the side that threw the jack throws the first colour ball
    } else {
        (currentTurn == BallColor::red ? state_.redBallsLeft : state_.blueBallsLeft) -= 1;
        repositionJackIfKnockedOut();
        if (redBallsLeft == 0 && blueBallsLeft == 0) {
            state_.phase = GamePhase::endOver;
            state_.aimState = AimState::idle;
            calculateScore();
            return;
        }
        determineNextTurn();
    }
    spawnBall();
    resetAim();
    message = messages::turn(language, currentTurn);
    triggerAIIfNeeded();
}

void GameLogic::passJackToOtherSide() {
    balls_.removeJack();
    state_.currentTurn = opponent(currentTurn);
    spawnBall();
    resetAim();
    message = messages::jackOut(language, currentTurn);
    triggerAIIfNeeded();
}

void GameLogic::resetAim() {
    state_.aimState = AimState::idle;
    state_.aimAngle = 0;
    state_.aimPitch = 0;
    state_.aimPower = aim::startPower;
}

void GameLogic::determineNextTurn() {
    state_.currentTurn = nextToThrow(balls_.position(), state_.ballsLeft());
}

void GameLogic::repositionJackIfKnockedOut() {
    const auto jack = balls_.position().jack;
    if (jack && isOutOfBounds(*jack)) {
        balls_.removeJack();
        balls_.place(BallColor::jack, crossPosition);
    }
}

void GameLogic::startNewEnd() {
    state_.redBallsLeft = ballsPerSide;
    state_.blueBallsLeft = ballsPerSide;
    state_.phase = GamePhase::throwingJack;
    state_.jackThrowAttempts = 0;
    state_.currentTurn = startingSide(currentEnd);
    dropAim();
    spawnBall();
    message = messages::newEndStart(language, currentEnd, currentTurn);
    triggerAIIfNeeded();
}

} // namespace vorbel
