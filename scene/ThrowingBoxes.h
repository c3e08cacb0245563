// The throwing area with its six boxes.
#pragma once

#include "platform/scenegraph/Scene.h"

namespace vorbel::arena {

// As wide as the court, in metres. The home boxes are tinted in the colours of the sides.
void addThrowingBoxes(Scene& scene, double courtWidth);

} // namespace vorbel::arena
