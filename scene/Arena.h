// The whole arena: court, stands, flags, referee, lights and camera.
#pragma once

#include "platform/random/RandomSource.h"
#include "platform/scenegraph/Scene.h"

namespace vorbel::arena {

// Without any ball. The random source dresses the stands.
[[nodiscard]] Scene makeArena(RandomSource& random);

} // namespace vorbel::arena
