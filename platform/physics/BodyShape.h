// Collision shapes derived from what a node looks like.
#pragma once

#include "platform/scenegraph/Geometry.h"

#include <memory>
#include <optional>

class btCollisionShape;

namespace vorbel {

// The shape that a body with this geometry collides with; edges are taken as sharp. A floor is the half-space
// below its plane, so a dynamic body cannot have it. Planes and extrusions become boxes around them. A body
// without geometry collides with nothing.
std::unique_ptr<btCollisionShape> makeBodyShape(const std::optional<Geometry>& geometry);

} // namespace vorbel
