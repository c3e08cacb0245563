// The referee of an end: whether the jack is valid, who throws next, when the end is over.
#include "engine/Distance.h"
#include "engine/GameLogic.h"
#include "engine/Messages.h"
#include "scene/Ball.h"

#include <algorithm>
#include <cmath>

namespace vorbel {

namespace {

constexpr double sideLine = 3.0;    // m from the court's middle line
constexpr double vLineApexZ = -1.5; // m: the V line at the middle of the court
constexpr double vLineDepth = 2.0;  // m that the line falls back from there to the side lines
constexpr double startPower = 10.0; // percent, before every throw

} // namespace

bool GameLogic::jackCrossedVLine(const Vec3& position) {
    const double towardsSide = std::min(std::abs(position.x) / sideLine, 1.0);
    return position.z <= vLineApexZ - vLineDepth * towardsSide;
}

bool GameLogic::isOutOfBounds(const Vec3& position) {
    return std::abs(position.x) > sideLine;
}

void GameLogic::handleTurnTransition() {
    if (phase == GamePhase::throwingJack) {
        ++jackThrowAttempts_;
        const Node::Ptr jack = jackNode();
        // Only the first jack of an end is judged: the second one counts wherever it lies.
        if (jackThrowAttempts_ == 1 && jack &&
            (isOutOfBounds(jack->position()) || !jackCrossedVLine(jack->position()))) {
            passJackToOtherSide(*jack);
            return;
        }
        phase = GamePhase::playing; // and the side that threw the jack throws the first colour ball
    } else {
        (currentTurn == BallColor::red ? redBallsLeft : blueBallsLeft) -= 1;
        repositionJackIfKnockedOut();
        if (redBallsLeft == 0 && blueBallsLeft == 0) {
            phase = GamePhase::endOver;
            aimState = AimState::idle;
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

void GameLogic::passJackToOtherSide(const Node& jack) {
    scene.root->removeChild(jack);
    currentTurn = opponent(currentTurn);
    spawnBall();
    resetAim();
    message = messages::jackOut(language, currentTurn);
    triggerAIIfNeeded();
}

void GameLogic::resetAim() {
    aimState = AimState::idle;
    aimAngle = 0;
    aimPitch = 0;
    aimPower = startPower;
}

void GameLogic::determineNextTurn() {
    if (redBallsLeft == 0 || blueBallsLeft == 0) {
        currentTurn = redBallsLeft == 0 ? BallColor::blue : BallColor::red;
        return;
    }
    const Node::Ptr jack = jackNode();
    if (!jack) {
        currentTurn = BallColor::red;
        return;
    }
    const double red = closest(distancesToJack(BallColor::red, jack->position()));
    const double blue = closest(distancesToJack(BallColor::blue, jack->position()));
    // A side without a ball in play throws, red first; then the side that is not closest; a tie is red's.
    currentTurn = red < blue ? BallColor::blue : BallColor::red;
}

void GameLogic::repositionJackIfKnockedOut() {
    const Node::Ptr jack = jackNode();
    if (jack && isOutOfBounds(jack->position())) {
        scene.root->removeChild(*jack);
        scene.root->addChild(makeRestingJack(crossPosition));
    }
}

void GameLogic::clearField() {
    const auto children = scene.root->children();
    for (const Node::Ptr& node : children) {
        if (isBall(*node)) {
            scene.root->removeChild(*node);
        }
    }
}

void GameLogic::startNewEnd() {
    redBallsLeft = ballsPerSide;
    blueBallsLeft = ballsPerSide;
    phase = GamePhase::throwingJack;
    jackThrowAttempts_ = 0;
    currentTurn = startingSide(currentEnd);
    aimState = AimState::idle;
    spawnBall();
    message = messages::newEndStart(language, currentEnd, currentTurn);
    triggerAIIfNeeded();
}

} // namespace vorbel
