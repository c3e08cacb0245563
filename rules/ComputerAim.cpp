#include "rules/ComputerAim.h"

#include "rules/CourtGeometry.h"
#include "rules/Throw.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vorbel {

namespace {

constexpr std::array<AimingError, allDifficulties.size()> largestErrors{{
    {0.8, 1.2},
    {0.1, 0.15},
    {0.03, 0.05},
    {0.0, 0.0}, // only the physics and the power model decide where the ball stops
}};

// In the court plane, x to the right and z towards the camera.
struct Direction {
    double x;
    double z;
};

Direction directionTo(double dx, double dz) {
    const double length = std::sqrt(dx * dx + dz * dz);
    return length <= onTheSpot ? Direction{0, -1} : Direction{dx / length, dz / length};
}

} // namespace

AimingError largestError(AIDifficulty level) {
    return largestErrors[static_cast<std::size_t>(level)];
}

double lengthBias(AIDifficulty level) {
    constexpr double share = 0.15;
    return share * largestError(level).lengthwise;
}

Aim aimAt(const Target& target, BallColor side, const AimingError& error) {
    constexpr double leastDistance = 0.1; // m
    const Vec3 spot = court::throwOrigin(side);
    const Direction u = directionTo(target.point.x - spot.x, target.point.z - spot.z);
    const double ax = target.point.x + error.sideways * -u.z + error.lengthwise * u.x - spot.x;
    const double az = target.point.z + error.sideways * u.x + error.lengthwise * u.z - spot.z;

    const double wanted = std::atan2(ax, -az);
    const double angle = aim::clampAngle(wanted);
    const double distance = angle == wanted
                                ? std::sqrt(ax * ax + az * az)
                                : std::max(std::sin(angle) * ax - std::cos(angle) * az, leastDistance);
    const double power = target.powerMultiplier * powerForDistance(distance);
    return {angle, 0, std::clamp(power, aim::lowestPower, aim::highestPower)}; // always rolled
}

} // namespace vorbel
