// Where between two loudspeakers a sound is heard.
#pragma once

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vorbel {

struct Panning {
    double left = 0; // gains
    double right = 0;
};

// −1 (left) … 1 (right); what lies beyond is taken for the side. As loud, in power, at the sides as in the middle.
[[nodiscard]] inline Panning panning(double pan) {
    const double angle = (std::clamp(pan, -1.0, 1.0) + 1) * std::numbers::pi / 4;
    return {std::cos(angle), std::sin(angle)};
}

} // namespace vorbel
