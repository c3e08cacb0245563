#include "platform/physics/SceneBodies.h"

#include <algorithm>

namespace vorbel {

SceneBodies::SceneBodies(const std::vector<Node::Ptr>& nodes) {
    for (const Node::Ptr& node : nodes) {
        if (node->body) {
            bodies_.push_back(std::make_unique<SceneBody>(node));
            bodies_.back()->rigid().setUserIndex(static_cast<int>(bodies_.size()) - 1);
        }
    }
    touches_ = BodyTouches(bodies_.size());
}

bool SceneBodies::areThoseOf(const std::vector<Node::Ptr>& nodes) const {
    auto body = bodies_.begin();
    for (const Node::Ptr& node : nodes) {
        if (node->body && (body == bodies_.end() || !(*body++)->isOf(*node))) {
            return false;
        }
    }
    return body == bodies_.end();
}

bool SceneBodies::isAnyAwake() const {
    return std::any_of(bodies_.begin(), bodies_.end(), [](const auto& body) { return body->isAwake(); });
}

void SceneBodies::wakeAll() {
    for (const auto& body : bodies_) {
        body->wake();
    }
}

void SceneBodies::continueFrom(const SceneBodies& former) {
    std::vector<std::size_t> formerIndex;
    for (std::size_t i = 0; i < bodies_.size(); ++i) {
        formerIndex.push_back(former.find(*bodies_[i]));
        if (formerIndex[i] == former.bodies_.size()) {
            continue;
        }
        if (!former.bodies_[formerIndex[i]]->isAwake()) {
            bodies_[i]->rest();
        }
        for (std::size_t j = 0; j < i; ++j) {
            if (formerIndex[j] != former.bodies_.size()) {
                touches_.set(i, j, former.touches_.isTouching(formerIndex[i], formerIndex[j]));
            }
        }
    }
    for (std::size_t i = 0; i < bodies_.size(); ++i) {
        if (formerIndex[i] == former.bodies_.size()) {
            wakeNear(*bodies_[i]);
        }
    }
    for (const auto& body : former.bodies_) {
        if (find(*body) == bodies_.size()) {
            wakeNear(*body);
        }
    }
}

bool SceneBodies::beginsTouch(const btPersistentManifold& manifold, double gap, double approach) {
    return touches_.begins(indexOf(*manifold.getBody0()), indexOf(*manifold.getBody1()), gap, approach);
}

// Two that rest do not part.
void SceneBodies::endTouchesOfSeparated() {
    for (std::size_t a = 0; a < bodies_.size(); ++a) {
        if (bodies_[a]->isAwake()) {
            endTouchesOfSeparated(a);
        }
    }
}

void SceneBodies::endTouchesOfSeparated(std::size_t a) {
    for (std::size_t b = 0; b < bodies_.size(); ++b) {
        if (a != b && touches_.isTouching(a, b) && !bodies_[a]->isNear(*bodies_[b])) {
            touches_.set(a, b, false);
        }
    }
}

std::size_t SceneBodies::indexOf(const btCollisionObject& rigid) {
    return static_cast<std::size_t>(rigid.getUserIndex());
}

std::size_t SceneBodies::find(const SceneBody& wanted) const {
    const auto found = std::find_if(bodies_.begin(), bodies_.end(),
                                    [&wanted](const auto& body) { return body->isSameAs(wanted); });
    return static_cast<std::size_t>(found - bodies_.begin());
}

void SceneBodies::wakeNear(const SceneBody& place) {
    for (const auto& body : bodies_) {
        if (body->isNear(place)) {
            body->wake();
        }
    }
}

} // namespace vorbel
