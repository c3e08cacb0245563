// All rigid bodies of a scene, in the order of their nodes.
#pragma once

#include "platform/physics/BodyTouches.h"
#include "platform/physics/SceneBody.h"

#include <memory>
#include <vector>

namespace vorbel {

class SceneBodies {
public:
    SceneBodies() = default;

    // Those of the nodes that have one. All dynamic ones are awake.
    explicit SceneBodies(const std::vector<Node::Ptr>& nodes);

    [[nodiscard]] auto begin() const { return bodies_.begin(); }
    [[nodiscard]] auto end() const { return bodies_.end(); }
    [[nodiscard]] SceneBody& of(const btCollisionObject& rigid) const { return *bodies_[indexOf(rigid)]; }

    // Whether these are still the bodies of the nodes: none came, went or was replaced.
    [[nodiscard]] bool areThoseOf(const std::vector<Node::Ptr>& nodes) const;
    [[nodiscard]] bool isAnyAwake() const;
    void wakeAll();

    // Keeps what was going on among the bodies that are the same in both: who was at rest, and who touched
    // whom. Bodies close to one that came or went are awake.
    void continueFrom(const SceneBodies& former);

    // Takes over how far apart two surfaces are, and how much nearer they come in the coming sub-step, in
    // metres. True when the two begin to touch with that.
    bool beginsTouch(const btPersistentManifold& manifold, double gap, double approach);
    void endTouchesOfSeparated();

private:
    static std::size_t indexOf(const btCollisionObject& rigid);
    // The number of bodies when it is not there.
    [[nodiscard]] std::size_t find(const SceneBody& wanted) const;
    void wakeNear(const SceneBody& place);
    void endTouchesOfSeparated(std::size_t a);

    std::vector<std::unique_ptr<SceneBody>> bodies_; // Bullet keeps their addresses
    BodyTouches touches_;
};

} // namespace vorbel
