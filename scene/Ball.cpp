#include "scene/Ball.h"

#include "rules/BallModel.h"

namespace vorbel {

namespace {

Color colorOf(BallColor color) {
    switch (color) {
    case BallColor::red:
        return colors::systemRed;
    case BallColor::blue:
        return colors::systemBlue;
    case BallColor::jack:
        break;
    }
    return colors::white;
}

Mark markOf(const Node& ball) {
    if (ball.name == nodeName(BallColor::jack)) {
        return Mark::none;
    }
    return ball.name == nodeName(BallColor::red) ? Mark::ring : Mark::cross;
}

} // namespace

std::shared_ptr<PhysicsBody> makeBallBody(PhysicsBody::Type type) {
    return std::make_shared<PhysicsBody>(PhysicsBody{.type = type,
                                                     .mass = ball::mass,
                                                     .friction = ball::friction,
                                                     .rollingFriction = ball::rollingFriction,
                                                     .restitution = ball::restitution,
                                                     .damping = ball::damping,
                                                     .angularDamping = ball::damping});
}

Node::Ptr makeBall(BallColor color, const Vec3& position, PhysicsBody::Type type) {
    auto node =
        std::make_shared<Node>(Geometry{Sphere{ball::radius}, {.diffuse = colorOf(color), .seams = true}});
    node->name = nodeName(color);
    node->setPosition(position);
    node->body = makeBallBody(type);
    return node;
}

Node::Ptr makeRestingJack(const Vec3& position) {
    return makeBall(BallColor::jack, position, PhysicsBody::Type::dynamic);
}

bool isBall(const Node& node) {
    return node.name == nodeName(BallColor::red) || node.name == nodeName(BallColor::blue) ||
           node.name == nodeName(BallColor::jack);
}

void setBallLook(Scene& scene, BallLook look) {
    for (const Node::Ptr& node : scene.root->children()) {
        if (node->geometry && isBall(*node)) {
            node->geometry->material.mark = look.marked ? markOf(*node) : Mark::none;
            node->geometry->material.outlined = look.outlined;
        }
    }
}

} // namespace vorbel
