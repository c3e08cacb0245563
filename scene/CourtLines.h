// The white lines of the court.
#pragma once

#include "platform/scenegraph/Scene.h"

namespace vorbel::arena {

// A line on the floor from one place to the other; nothing when it would be shorter than a millimetre.
void addCourtLine(Scene& scene, const Vec3& from, const Vec3& to);

void addVLine(Scene& scene);
void addSideLines(Scene& scene);

} // namespace vorbel::arena
