// The aim of a throw, its limits and the swing of its power.
#pragma once

#include "l10n/BocciaClass.h"

#include <numbers>

namespace vorbel {

struct Aim {
    double angle = 0; // rad, 0 down the court, positive to the right
    double pitch = 0; // rad above the court
    double power = 0; // percent of full throwing speed
};

namespace aim {

inline constexpr double angleLimit = std::numbers::pi / 4; // rad, to both sides
inline constexpr double pitchLimit = std::numbers::pi / 3; // rad
inline constexpr double angleStep = 0.05;                  // rad a key press
inline constexpr double pitchStep = 0.05;                  // rad a key press
inline constexpr double fineStep = 0.01;                   // rad, of both, for those who aim finely
inline constexpr double lowestPower = 10;                  // percent; the swing turns round beyond it
inline constexpr double highestPower = 100;                // percent
inline constexpr double startPower = lowestPower;          // before every throw of an end
inline constexpr double powerByHandStep = 1;               // percent a key press, where it does not swing
inline constexpr double powerByHandLeap = 10;              // percent, for a quick change
inline constexpr double releaseError = 0.06;               // rad, largest of a BC1 thrower's release

[[nodiscard]] double clampAngle(double angle);
[[nodiscard]] double clampPitch(double pitch);

// Percent a tick: how fast the power swings.
[[nodiscard]] double powerStep(BocciaClass sportClass);

// Whether the power has swung past its range and turns round. It is not clamped: a throw locked just then
// keeps the overshoot of up to one step.
[[nodiscard]] bool turnsRound(double power);

// A ramp keeps the throw on the ground.
[[nodiscard]] constexpr bool mayRaise(BocciaClass sportClass) {
    return sportClass != BocciaClass::bc3;
}

// Athletes with little control of the release do not quite throw where they aimed.
[[nodiscard]] constexpr bool hasReleaseError(BocciaClass sportClass) {
    return sportClass == BocciaClass::bc1;
}

} // namespace aim

} // namespace vorbel
