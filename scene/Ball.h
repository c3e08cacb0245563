// The balls of boccia: the white jack, red balls and blue balls, all of one size and weight.
#pragma once

#include "engine/MatchTypes.h"
#include "platform/scenegraph/Node.h"

#include <memory>

namespace vorbel {

inline constexpr double ballRadius = 0.05; // m

// Height of a resting ball's centre: the physics floor lies 15 mm below the visible court.
inline constexpr double restingHeight = 0.035; // m

[[nodiscard]] std::shared_ptr<PhysicsBody> makeBallBody(PhysicsBody::Type type);

// A ball named after its kind, at the position, with a body of that type; not added to any scene.
[[nodiscard]] Node::Ptr makeBall(BallColor color, const Vec3& position, PhysicsBody::Type type);

// Whether the node is a ball, of any kind, by its name.
[[nodiscard]] bool isBall(const Node& node);

} // namespace vorbel
