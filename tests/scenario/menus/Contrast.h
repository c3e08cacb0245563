// How well text stands out from what lies behind it.
#pragma once

#include "tests/scenario/menus/ColorSight.h"

#include <QColor>
#include <QQuickItem>

namespace vorbel {

// Of two opaque colours, 1 (the same) to 21 (black and white), as the Web Content Accessibility Guidelines define it.
[[nodiscard]] double contrast(const QColor& a, const QColor& b);

// The text's contrast with the rectangles that its window paints under it, when `behind` (opaque) lies behind
// all of them; for that kind of sight.
[[nodiscard]] double contrastOver(QQuickItem& text, const QColor& behind, Sight sight = Sight::normal);

} // namespace vorbel
