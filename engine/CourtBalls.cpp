#include "engine/CourtBalls.h"

#include "rules/CourtGeometry.h"
#include "rules/Settling.h"
#include "scene/Ball.h"
#include "scene/Pointer.h"

#include <algorithm>

namespace vorbel {

namespace {

bool isThrown(const Node& ball) {
    return ball.body && ball.body->type == PhysicsBody::Type::dynamic;
}

} // namespace

CourtBalls::CourtBalls(Scene& scene) : scene_(scene), pointer_(scene.root->findChild(arena::pointerName)) {}

Position CourtBalls::position() const {
    return positionWithout(nullptr);
}

Position CourtBalls::thrown() const {
    return positionWithout(waiting_.get());
}

Position CourtBalls::positionWithout(const Node* leftOut) const {
    Position position;
    for (const auto& [kind, node] : balls_) {
        if (node.get() == leftOut) {
            continue;
        }
        if (kind != BallColor::jack) {
            (kind == BallColor::red ? position.red : position.blue).push_back(node->position());
        } else if (!position.jack) {
            position.jack = node->position();
        }
    }
    return position;
}

void CourtBalls::add(BallColor kind, Node::Ptr node) {
    scene_.root->addChild(node);
    balls_.push_back({kind, std::move(node)});
}

void CourtBalls::spawn(BallColor kind, BallColor side) {
    const Vec3 origin = court::throwOrigin(side);
    waiting_ = makeBall(kind, origin, PhysicsBody::Type::kinematic);
    add(kind, waiting_);
    if (pointer_) {
        pointer_->setPosition({origin.x, arena::pointerHeight, origin.z});
    }
}

bool CourtBalls::launch(const Launch& launch) {
    if (!waiting_) {
        return false;
    }
    auto body = makeBallBody(PhysicsBody::Type::dynamic);
    body->velocity = launch.velocity;
    body->angularVelocity = launch.angularVelocity;
    waiting_->body = std::move(body);
    waiting_ = nullptr;
    return true;
}

Node::Ptr CourtBalls::place(BallColor kind, const Vec3& position) {
    Node::Ptr node = makeBall(kind, position, PhysicsBody::Type::dynamic);
    add(kind, node);
    return node;
}

void CourtBalls::removeJack() {
    const auto jack = std::ranges::find(balls_, BallColor::jack, &Ball::kind);
    if (jack != balls_.end()) {
        scene_.root->removeChild(*jack->node);
        balls_.erase(jack);
    }
}

void CourtBalls::clear() {
    for (const Ball& ball : balls_) {
        scene_.root->removeChild(*ball.node);
    }
    balls_.clear();
}

bool CourtBalls::allSettled() const {
    return std::ranges::all_of(balls_, [](const Ball& ball) {
        return !isThrown(*ball.node) || hasSettled(ball.node->position().y, ball.node->body->velocity);
    });
}

void CourtBalls::freeze() {
    for (const Ball& ball : balls_) {
        if (isThrown(*ball.node)) {
            ball.node->body->velocity = Vec3(0);
            ball.node->body->angularVelocity = Vec3(0);
        }
    }
}

void CourtBalls::showPointer(bool visible) {
    if (pointer_) {
        pointer_->opacity = visible ? arena::shownPointerOpacity : 0;
    }
}

} // namespace vorbel
