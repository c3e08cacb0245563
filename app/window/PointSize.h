// How large a point of the interface is, and how large the window must be at least.
#pragma once

#include <QSize>
#include <QSizeF>

namespace vorbel {

// What the interface is laid out for: there are never fewer points, whatever the window's size.
inline constexpr QSize smallestArea(1200, 800); // points

// In the window's own pixels: the largest with which the smallest area still fits into the window. So points
// grow with the window, and the smallest text keeps its share of the window's height.
[[nodiscard]] double pointSize(const QSizeF& window);

// The smallest area, a point being a pixel; on a screen without room for that and the decoration around it,
// as large as fits, in the same shape. Empty only without any free area.
[[nodiscard]] QSize smallestWindow(const QSize& freeArea);

} // namespace vorbel
