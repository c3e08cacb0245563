// Rigid-body physics of a scene. What a throw does depends on the scene alone: never on the frame rate.
#pragma once

#include "platform/scenegraph/Scene.h"

#include <functional>
#include <memory>

namespace vorbel {

class PhysicsWorld {
public:
    // Told once when two bodies begin to touch, before the impact changes the velocities in their bodies.
    // Called within `step`: velocities and poses set in here are overwritten.
    using ContactBegan = std::function<void(const Node& nodeA, const Node& nodeB)>;

    // The scene must outlive the world. Bodies are those of the scene root's direct children.
    explicit PhysicsWorld(Scene& scene);
    ~PhysicsWorld();
    PhysicsWorld(const PhysicsWorld&) = delete;
    PhysicsWorld& operator=(const PhysicsWorld&) = delete;

    void setContactDelegate(ContactBegan delegate);

    // Takes over what the game changed (nodes added and removed, bodies replaced, positions, velocities and
    // gravity set), then advances all dynamic bodies by one tick of `seconds` and writes poses and velocities
    // back. The other members of a body are read when it is new to the world: to change them, replace it.
    // Same scene, same calls: bit-identical results.
    void step(double seconds);

    // Whether a body has moved in the last step.
    [[nodiscard]] bool isAnythingMoving() const;

private:
    class Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace vorbel
