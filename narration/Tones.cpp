#include "narration/Tones.h"

#include "rules/Aim.h"

#include <cmath>

namespace vorbel::narration {

double pitchOf(double power) {
    constexpr double lowest = 261.63; // Hz, the middle C: small loudspeakers still have it
    constexpr double octaves = 2;
    const double height = (power - aim::lowestPower) / (aim::highestPower - aim::lowestPower);
    return lowest * std::exp2(octaves * height);
}

double panOf(double angle) {
    return aim::clampAngle(angle) / aim::angleLimit;
}

} // namespace vorbel::narration
