// The bar that shows where a throw is aimed.
#pragma once

#include "platform/scenegraph/Scene.h"

#include <cstdint>
#include <string_view>

namespace vorbel::arena {

inline constexpr std::string_view pointerName = "pointer";
inline constexpr double pointerHeight = 0.02; // m, above the court
inline constexpr double shownPointerOpacity = 0.8;

// Lies in the middle of the court, forwards from as far as the balls wait, and is not seen yet.
void addPointer(Scene& scene);

// Usual, a red bar; clear, a white one between black edges, for those who see it badly. Whether it is seen,
// and where it points, stays as it is. Nothing without a pointer.
enum class PointerLook : std::uint8_t { usual, clear };
void setPointerLook(Scene& scene, PointerLook look);

} // namespace vorbel::arena
