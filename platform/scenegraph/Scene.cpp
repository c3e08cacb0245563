#include "platform/scenegraph/Scene.h"

#include <algorithm>

namespace vorbel {

void Scene::animateOrientation(const Node::Ptr& node, const Quat& target, double seconds) {
    std::erase_if(turns_, [&node](const Turn& turn) { return turn.node.lock() == node; });
    turns_.push_back({node, node->orientation(), target, seconds, 0.0});
}

void Scene::advanceAnimations(double seconds) {
    std::erase_if(turns_, [seconds](Turn& turn) {
        const Node::Ptr node = turn.node.lock();
        if (!node) {
            return true;
        }
        const bool arrived = turn.elapsed >= turn.duration;
        turn.elapsed += seconds;
        const double progress = std::min(turn.elapsed / turn.duration, 1.0);
        node->advanceTo({node->position(), glm::slerp(turn.from, turn.to, progress)});
        return arrived; // one tick after the arrival, so that the node no longer counts as moving
    });
}

bool Scene::isAnythingTurning() const {
    return std::ranges::any_of(turns_, [](const Turn& turn) {
        const Node::Ptr node = turn.node.lock();
        return node && node->isMoving();
    });
}

} // namespace vorbel
