// The bar that shows where a throw is aimed.
#pragma once

#include "platform/scenegraph/Scene.h"

#include <string_view>

namespace vorbel::arena {

inline constexpr std::string_view pointerName = "pointer";
inline constexpr double pointerHeight = 0.02; // m, above the court
inline constexpr double shownPointerOpacity = 0.8;

// Lies on the court, from the middle of the throwing line forwards, and is not seen yet.
void addPointer(Scene& scene);

} // namespace vorbel::arena
