// The balls of an end as nodes of the scene: put there, thrown, stopped and removed here and nowhere else.
#pragma once

#include "platform/scenegraph/Scene.h"
#include "rules/Position.h"
#include "rules/Throw.h"

#include <vector>

namespace vorbel {

// Main thread only.
class CourtBalls {
public:
    // The scene must outlive this. Its pointer, where it has one, is moved along with the waiting ball.
    explicit CourtBalls(Scene& scene);

    // Where all balls lie, the waiting one included.
    [[nodiscard]] Position position() const;
    // Where the balls lie that have been thrown, the waiting one not among them.
    [[nodiscard]] Position thrown() const;
    // The ball in the throwing box; null between a throw and the next spawn.
    [[nodiscard]] const Node::Ptr& waiting() const { return waiting_; }

    // Puts a ball of that kind into the side's throwing box, held in place. One that waited there stays in
    // the scene, but is no longer the waiting one.
    void spawn(BallColor kind, BallColor side);
    // Sets the waiting ball free. Returns false, and does nothing, without one.
    bool launch(const Launch& launch);
    // Adds a ball that lies there and is free to roll.
    Node::Ptr place(BallColor kind, const Vec3& position);
    void removeJack(); // the first, if there is one
    void clear();      // removes all balls from the scene

    // Whether every thrown ball counts as resting; true when there is none.
    [[nodiscard]] bool allSettled() const;
    void freeze(); // stops every thrown ball where it is

    void showPointer(bool visible);

private:
    struct Ball {
        BallColor kind;
        Node::Ptr node;
    };

    void add(BallColor kind, Node::Ptr node);
    [[nodiscard]] Position positionWithout(const Node* leftOut) const;

    Scene& scene_;
    Node::Ptr pointer_;       // null: the scene has none
    std::vector<Ball> balls_; // in the order in which they came to the court
    Node::Ptr waiting_;
};

} // namespace vorbel
