// A throw from the waiting ball to the moment when all balls rest.
#include "engine/GameLogic.h"
#include "engine/Messages.h"
#include "rules/Settling.h"

#include <glm/geometric.hpp>

namespace vorbel {

namespace {

double speedOf(const Node& node) {
    return node.body ? glm::length(node.body->velocity) : 0;
}

} // namespace

void GameLogic::spawnBall() {
    balls_.spawn(phase == GamePhase::throwingJack ? BallColor::jack : currentTurn.get(), currentTurn);
}

void GameLogic::beginThrow() {
    state_.aimState = AimState::thrown;
    state_.ticksSinceThrown = 0;
}

void GameLogic::releaseBall() {
    message = messages::ballInPlay(language);
    balls_.showPointer(false);
    throwActiveBall();
}

void GameLogic::throwActiveBall() {
    if (balls_.launch(launch(state_.aim()))) {
        sounds_.playThrow();
    }
}

void GameLogic::checkPhysics() {
    ++state_.ticksSinceThrown;
    if (isThrowOver(state_.ticksSinceThrown, balls_.allSettled())) {
        balls_.freeze();
        handleTurnTransition();
    }
}

void GameLogic::physicsWorldDidBegin(const Node& nodeA, const Node& nodeB) {
    if (isBall(nodeA) && isBall(nodeB) && isAudible(speedOf(nodeA), speedOf(nodeB))) {
        const Vec3 place = (nodeA.position() + nodeB.position()) / 2.0;
        platform_.mainQueue.post(lifetime_.whileAlive([this, place] { sounds_.playHit(place); }));
    }
}

} // namespace vorbel
