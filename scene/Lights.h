// The spot light above the court, and the light that comes from everywhere.
#pragma once

#include "platform/scenegraph/Scene.h"

namespace vorbel::arena {

void addLights(Scene& scene);

} // namespace vorbel::arena
