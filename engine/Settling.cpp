// When a throw is over, and the click of balls that strike each other.
#include "engine/GameLogic.h"
#include "scene/Ball.h"

#include <algorithm>
#include <cmath>

namespace vorbel {

namespace {

constexpr int fewestTicks = 26;         // 0.52 s: no throw is over before
constexpr int mostTicks = 150;          // 3 s: every throw is over then
constexpr double airborneHeight = 0.06; // m; the centre of a resting ball lies at 0.035
constexpr double restingSpeed = 0.25;   // m/s, horizontal; slower balls stop where they are
constexpr double audibleSpeed = 0.15;   // m/s; gentler impacts make no sound

bool isDynamic(const Node& node) {
    return node.body && node.body->type == PhysicsBody::Type::dynamic;
}

bool hasSettled(const Node& ball) {
    const Vec3& velocity = ball.body->velocity;
    const double speed = std::sqrt(velocity.x * velocity.x + velocity.z * velocity.z);
    return ball.position().y <= airborneHeight &&
           speed < restingSpeed; // false for a speed that is not a number
}

double speedOf(const Node& node) {
    return node.body ? glm::length(node.body->velocity) : 0;
}

} // namespace

void GameLogic::checkPhysics() {
    ++ticksSinceThrown_;
    const bool allSettled = std::ranges::all_of(
        scene.root->children(), [](const Node::Ptr& node) { return !isDynamic(*node) || hasSettled(*node); });
    if (ticksSinceThrown_ >= mostTicks || (allSettled && ticksSinceThrown_ >= fewestTicks)) {
        freezeBalls();
        handleTurnTransition();
    }
}

void GameLogic::freezeBalls() {
    for (const Node::Ptr& node : scene.root->children()) {
        if (isDynamic(*node)) {
            node->body->velocity = Vec3(0);
            node->body->angularVelocity = Vec3(0);
        }
    }
}

void GameLogic::physicsWorldDidBegin(const Node& nodeA, const Node& nodeB) {
    if (!isBall(nodeA) || !isBall(nodeB) || std::max(speedOf(nodeA), speedOf(nodeB)) <= audibleSpeed) {
        return;
    }
    platform_.mainQueue.post(lifetime_.whileAlive([this] { restart(hitSound_.get()); }));
}

} // namespace vorbel
