#include "rules/Aim.h"

#include <algorithm>
#include <array>

namespace vorbel::aim {

namespace {

constexpr std::array<double, bocciaClassCount> powerSteps{0.85, 0.6, 0.3, 0.6};

} // namespace

double clampAngle(double angle) {
    return std::clamp(angle, -angleLimit, angleLimit);
}

double clampPitch(double pitch) {
    return std::clamp(pitch, 0.0, pitchLimit);
}

double powerStep(BocciaClass sportClass) {
    return powerSteps[static_cast<std::size_t>(sportClass)];
}

bool turnsRound(double power) {
    return power > highestPower || power < lowestPower;
}

} // namespace vorbel::aim
