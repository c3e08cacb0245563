// Where a jack may lie.
#pragma once

#include "math/Vector.h"

namespace vorbel {

// Beyond a side line, on which a ball still is in.
[[nodiscard]] bool isOutOfBounds(const Vec3& position);

// At the V line or beyond it, seen from the throwing line.
[[nodiscard]] bool jackCrossedVLine(const Vec3& position);

// Whether the first jack of an end counts.
[[nodiscard]] bool isValidJack(const Vec3& position);

} // namespace vorbel
