#include "tests/picture/RollingBalls.h"

#include "engine/GameLogic.h"
#include "platform/random/RandomSource.h"
#include "rules/BallModel.h"
#include "rules/CourtGeometry.h"
#include "scene/Ball.h"

#include <algorithm>

namespace vorbel {

namespace {

constexpr int ballCount = 13;

Scene makeArena() {
    SeededRandom random(2024);
    return GameLogic::create3DScene(random);
}

BallColor colorOf(int ball) {
    if (ball == 0) {
        return BallColor::jack;
    }
    return ball % 2 == 0 ? BallColor::blue : BallColor::red;
}

} // namespace

RollingBalls::RollingBalls() : scene(makeArena()), world_(scene) {
    for (int i = 0; i < ballCount; ++i) {
        balls.push_back(makeBall(colorOf(i), Vec3(0, 1, 0), PhysicsBody::Type::dynamic));
        scene.root->addChild(balls.back());
    }
    throwAll();
}

void RollingBalls::throwAll() {
    for (int i = 0; i < ballCount; ++i) {
        const Node::Ptr& ball = balls[static_cast<std::size_t>(i)];
        const int column = i - ballCount / 2;
        ball->setPosition({0.3 * column, i % 3 == 0 ? 0.3 : court::restingHeight, -0.5});
        ball->body->velocity = {-0.04 * column, 0, -2.2 - 0.25 * ((5 * i) % ballCount)};
        ball->body->angularVelocity = {ball->body->velocity.z / ball::radius, 0, 0};
    }
}

} // namespace vorbel
