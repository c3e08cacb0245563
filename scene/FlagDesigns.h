// The six designs that the flags on the wall are made of, drawn in the x–y plane and facing +z. A flag's
// children are its layers; widths and heights in metres.
#pragma once

#include "platform/scenegraph/Node.h"

#include <span>

namespace vorbel::arena {

// Equal stripes, one above the other from the top or side by side from the left. Needs a colour at least.
[[nodiscard]] Node::Ptr makeStripedFlag(std::span<const Color> stripeColors, bool horizontal, double width,
                                        double height);
[[nodiscard]] Node::Ptr makeCircleFlag(const Color& background, const Color& circle, double width,
                                       double height);
// A cross with a narrower one on it.
[[nodiscard]] Node::Ptr makeCrossFlag(const Color& background, const Color& crossColor,
                                      const Color& innerCrossColor, double width, double height);
// A cross in the upper left quarter.
[[nodiscard]] Node::Ptr makeCantonFlag(const Color& fieldColor, double width, double height);
[[nodiscard]] Node::Ptr makeKoreaFlag(double width, double height); // a disc divided in two
[[nodiscard]] Node::Ptr makeStarFlag(double width, double height);  // two triangles between two bars

} // namespace vorbel::arena
