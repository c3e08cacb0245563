#include "scene/Ball.h"

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

} // namespace

std::shared_ptr<PhysicsBody> makeBallBody(PhysicsBody::Type type) {
    return std::make_shared<PhysicsBody>(PhysicsBody{.type = type,
                                                     .mass = 0.2,
                                                     .friction = 0.8,
                                                     .rollingFriction = 0.05,
                                                     .restitution = 0.0, // leather balls do not bounce
                                                     .damping = 0.4,
                                                     .angularDamping = 0.4});
}

Node::Ptr makeBall(BallColor color, const Vec3& position, PhysicsBody::Type type) {
    auto ball =
        std::make_shared<Node>(Geometry{Sphere{ballRadius}, {.diffuse = colorOf(color), .seams = true}});
    ball->name = nodeName(color);
    ball->setPosition(position);
    ball->body = makeBallBody(type);
    return ball;
}

bool isBall(const Node& node) {
    return node.name == nodeName(BallColor::red) || node.name == nodeName(BallColor::blue) ||
           node.name == nodeName(BallColor::jack);
}

} // namespace vorbel
