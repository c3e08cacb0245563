// The waiting ball and its launch.
#include "engine/GameLogic.h"
#include "scene/Ball.h"

#include <cmath>

namespace vorbel {

namespace {

constexpr double fullSpeed = 5.0;          // m/s at 100 % power
constexpr double leastRollingSpeed = 1e-4; // m/s; a ball thrown straight up gets no spin

} // namespace

Vec3 GameLogic::throwOrigin(BallColor side) {
    return {side == BallColor::red ? -1.0 : 1.0, restingHeight, -0.5};
}

void GameLogic::spawnBall() {
    const Vec3 origin = throwOrigin(currentTurn);
    const BallColor kind = phase == GamePhase::throwingJack ? BallColor::jack : currentTurn.get();
    activeBallNode = makeBall(kind, origin, PhysicsBody::Type::kinematic);
    scene.root->addChild(activeBallNode);
    if (const Node::Ptr pointer = scene.root->findChild("pointer")) {
        constexpr double pointerHeight = 0.02;
        pointer->setPosition({origin.x, pointerHeight, origin.z});
    }
}

void GameLogic::throwActiveBall() {
    if (!activeBallNode) {
        return;
    }
    const double speed = aimPower / 100 * fullSpeed;
    const double horizontal = speed * std::cos(aimPitch);
    const double sine = std::sin(aimAngle);
    const double cosine = std::cos(aimAngle);

    auto body = makeBallBody(PhysicsBody::Type::dynamic);
    body->velocity = {horizontal * sine, speed * std::sin(aimPitch), -horizontal * cosine};
    if (horizontal > leastRollingSpeed) {
        // Rolling without slipping from the start, about the axis across the direction of travel.
        body->angularVelocity = Vec3(-cosine, 0, -sine) * (horizontal / ballRadius);
    }
    activeBallNode->body = std::move(body);
    restart(throwSound_.get());
    activeBallNode = nullptr;
}

} // namespace vorbel
