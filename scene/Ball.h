// The balls of boccia: the white jack, red balls and blue balls, all of one size and weight.
#pragma once

#include "platform/scenegraph/Scene.h"
#include "rules/MatchTypes.h"

#include <array>
#include <memory>
#include <string_view>

namespace vorbel {

// Name of the scene nodes that are balls of this kind.
[[nodiscard]] constexpr std::string_view nodeName(BallColor color) {
    constexpr std::array<std::string_view, 3> names{"red", "blue", "jack"};
    return names[static_cast<std::size_t>(color)];
}

[[nodiscard]] std::shared_ptr<PhysicsBody> makeBallBody(PhysicsBody::Type type);

// A ball named after its kind, at the position, with a body of that type; not added to any scene.
[[nodiscard]] Node::Ptr makeBall(BallColor color, const Vec3& position, PhysicsBody::Type type);

// A jack that lies still and is free to roll; not added to any scene.
[[nodiscard]] Node::Ptr makeRestingJack(const Vec3& position);

// Whether the node is a ball, of any kind, by its name.
[[nodiscard]] bool isBall(const Node& node);

// How balls are told apart without their colour, and from the court: by rings on red ones and crosses on
// blue ones, and by lines around all.
struct BallLook {
    bool marked = false;
    bool outlined = false;
    bool operator==(const BallLook&) const = default;
};

// For all balls that are in the scene now; those that come later have none of it.
void setBallLook(Scene& scene, BallLook look);

} // namespace vorbel
