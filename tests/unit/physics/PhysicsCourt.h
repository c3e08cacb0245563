// A court with its floor and back wall and a few balls, advanced tick by tick.
#pragma once

#include "platform/physics/PhysicsWorld.h"

#include <cmath>
#include <numbers>

#include <glm/geometric.hpp>

namespace vorbel {

constexpr double tick = 0.02;       // s
constexpr double ballRadius = 0.05; // m
constexpr double restHeight = 0.035;
constexpr double dampingRate = 0.4; // 1/s

inline PhysicsBody ballBody(PhysicsBody::Type type = PhysicsBody::Type::dynamic) {
    return {.type = type,
            .mass = 0.2,
            .friction = 0.8,
            .rollingFriction = 0.05,
            .restitution = 0,
            .damping = dampingRate,
            .angularDamping = dampingRate};
}

class PhysicsCourt {
public:
    PhysicsCourt() {
        add(Floor{}, {.friction = 0.6, .restitution = 0}, {0, -0.015, 0});
        add(Box{6, 1, 0.1}, {.restitution = 0}, {0, 0.5, -12.5});
    }

    Node::Ptr add(Shape shape, const PhysicsBody& body, const Vec3& position) {
        auto node = std::make_shared<Node>(Geometry{std::move(shape), {}});
        node->body = std::make_shared<PhysicsBody>(body);
        node->setPosition(position);
        scene.root->addChild(node);
        return node;
    }

    Node::Ptr addBall(const Vec3& position, const PhysicsBody& body = ballBody()) {
        return add(Sphere{ballRadius}, body, position);
    }

    // A ball on its way, as a throw leaves it: rolling without slipping in its horizontal direction.
    Node::Ptr launch(const Vec3& position, const Vec3& velocity) {
        PhysicsBody body = ballBody();
        body.velocity = velocity;
        body.angularVelocity = glm::cross(Vec3(0, 1, 0), velocity) / ballRadius;
        return addBall(position, body);
    }

    void run(int ticks) {
        for (int i = 0; i < ticks; ++i) {
            world.step(tick);
        }
    }

    Scene scene;
    PhysicsWorld world{scene};
};

inline double kineticEnergy(const Node& ball) {
    const PhysicsBody& body = *ball.body;
    const double inertia = 0.4 * body.mass * ballRadius * ballRadius;
    return 0.5 * body.mass * glm::dot(body.velocity, body.velocity) +
           0.5 * inertia * glm::dot(body.angularVelocity, body.angularVelocity);
}

} // namespace vorbel
