// What one sees the balls roll on, and what they really roll on.
#pragma once

#include "platform/scenegraph/Scene.h"

namespace vorbel::arena {

inline constexpr double courtThickness =
    0.1; // m, of the court and of the throwing area: their tops are y = 0

// The floor of the arena, the court, and the unseen floor and back wall for the balls.
void addFloors(Scene& scene);

} // namespace vorbel::arena
