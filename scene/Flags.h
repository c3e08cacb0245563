// The wall of flags above the far part of the court, one for every country. Drawn without emblems and with
// equal stripes: it is read from ten metres away.
#pragma once

#include "platform/scenegraph/Scene.h"

namespace vorbel::arena {

void addFlags(Scene& scene);

} // namespace vorbel::arena
