// Distances of balls from the jack.
#pragma once

#include <algorithm>
#include <limits>
#include <span>

namespace vorbel {

// The smallest of the distances; +∞ when there are none.
[[nodiscard]] inline double closest(std::span<const double> distances) {
    return distances.empty() ? std::numeric_limits<double>::infinity() : std::ranges::min(distances);
}

} // namespace vorbel
