#include "platform/scenegraph/Node.h"

#include <algorithm>

namespace vorbel {

void Node::setPosition(const Vec3& position) {
    current_.position = position;
    previous_ = current_;
}

void Node::setOrientation(const Quat& orientation) {
    current_.orientation = orientation;
    previous_ = current_;
}

void Node::advanceTo(const Pose& next) {
    previous_ = current_;
    current_ = next;
}

Pose Node::displayedPose(double fraction) const {
    if (!isMoving()) {
        return current_;
    }
    return {glm::mix(previous_.position, current_.position, fraction),
            glm::slerp(previous_.orientation, current_.orientation, fraction)};
}

void Node::addChild(Ptr child) {
    child->body.countIn(childBodyChanges_);
    children_.push_back(std::move(child));
    ++*childBodyChanges_;
}

void Node::removeChild(const Node& child) {
    std::erase_if(children_, [&child](const Ptr& candidate) { return candidate.get() == &child; });
    ++*childBodyChanges_;
}

Node::Ptr Node::findChild(std::string_view childName) const {
    for (const Ptr& child : children_) {
        if (child->name == childName) {
            return child;
        }
        if (Ptr found = child->findChild(childName)) {
            return found;
        }
    }
    return nullptr;
}

} // namespace vorbel
