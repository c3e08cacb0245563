// What draws on this machine.
#pragma once

#include <string>

namespace vorbel {

// One line: kind and version of OpenGL, the driver's name for itself and its maker; or that there is none the renderer
// can use, and what there is instead. Needs the application object; main thread.
[[nodiscard]] std::string driverFacts();

} // namespace vorbel
