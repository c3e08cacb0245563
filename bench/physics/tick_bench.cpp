// Time of one 20 ms tick of the court with many nodes and a few balls.
#include "platform/physics/PhysicsWorld.h"

#include <benchmark/benchmark.h>

namespace vorbel {

namespace {

constexpr double tick = 0.02;     // s
constexpr int sceneryCount = 400; // nodes without a body: stands, spectators, flags, lines
constexpr int ballCount = 13;

Node::Ptr addBody(Scene& scene, Shape shape, PhysicsBody body, Vec3 position) {
    auto node = std::make_shared<Node>(Geometry{std::move(shape), {}});
    node->body = std::make_shared<PhysicsBody>(body);
    node->setPosition(position);
    scene.root->addChild(node);
    return node;
}

struct Court {
    Court() {
        addBody(scene, Floor{}, {.friction = 0.6, .restitution = 0}, {0, -0.015, 0});
        addBody(scene, Box{6, 1, 0.1}, {.restitution = 0}, {0, 0.5, -12.5});
        for (int i = 0; i < sceneryCount; ++i) {
            scene.root->addChild(std::make_shared<Node>("scenery"));
        }
        const PhysicsBody ball{.type = PhysicsBody::Type::dynamic,
                               .mass = 0.2,
                               .friction = 0.8,
                               .rollingFriction = 0.05,
                               .restitution = 0,
                               .damping = 0.4,
                               .angularDamping = 0.4};
        for (int i = 0; i < ballCount; ++i) {
            balls.push_back(addBody(scene, Sphere{0.05}, ball, {-1.8 + 0.3 * i, 0.035, -0.5}));
        }
    }

    void roll(int count) {
        for (int i = 0; i < count; ++i) {
            const auto& ball = balls[static_cast<std::size_t>(i)];
            ball->setPosition({-1.8 + 0.3 * i, 0.035, -0.5});
            ball->body->velocity = {0, 0, -3};
            ball->body->angularVelocity = {-60, 0, 0};
        }
    }

    Scene scene;
    std::vector<Node::Ptr> balls;
};

void rollingTick(benchmark::State& state) {
    Court court;
    PhysicsWorld world(court.scene);
    int ticks = 0;
    for ([[maybe_unused]] auto _ : state) {
        if (ticks++ % 100 == 0) {
            court.roll(static_cast<int>(state.range(0)));
        }
        world.step(tick);
    }
}
BENCHMARK(rollingTick)
    ->Name("tick of physics")
    ->ArgName("balls rolling")
    ->Arg(1)
    ->Arg(3)
    ->Arg(13)
    ->Unit(benchmark::kMicrosecond);

void restingTick(benchmark::State& state) {
    Court court;
    PhysicsWorld world(court.scene);
    for (int i = 0; i < 10; ++i) {
        world.step(tick);
    }
    for ([[maybe_unused]] auto _ : state) {
        world.step(tick);
    }
}
BENCHMARK(restingTick)->Name("tick of physics with all at rest")->Unit(benchmark::kMicrosecond);

// A throw swaps a body, which makes the world anew.
void bodySwap(benchmark::State& state) {
    Court court;
    PhysicsWorld world(court.scene);
    for ([[maybe_unused]] auto _ : state) {
        court.balls[0]->body = std::make_shared<PhysicsBody>(*court.balls[0]->body);
        world.step(tick);
    }
}
BENCHMARK(bodySwap)->Name("tick of physics with a body swapped")->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace vorbel
