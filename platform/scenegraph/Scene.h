// The whole scene: a tree of nodes with its background, its gravity and its running animations.
#pragma once

#include "platform/scenegraph/Node.h"

#include <vector>

namespace vorbel {

class Scene {
public:
    Node::Ptr root = std::make_shared<Node>();
    Color background = colors::black;
    Vec3 gravity{0, -9.8, 0}; // m/s²

    // Turns the node smoothly to the orientation within `seconds`; a second call on the same node replaces
    // the first. Time passes only in advanceAnimations.
    void animateOrientation(const Node::Ptr& node, const Quat& target, double seconds);
    void advanceAnimations(double seconds);
    [[nodiscard]] bool isAnythingTurning() const; // between the last tick and the one before

private:
    struct Turn {
        std::weak_ptr<Node> node;
        Quat from;
        Quat to;
        double duration; // s
        double elapsed;  // s; past the duration the node stands still and the turn is dropped
    };
    std::vector<Turn> turns_;
};

} // namespace vorbel
