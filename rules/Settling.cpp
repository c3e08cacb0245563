#include "rules/Settling.h"

#include "rules/BallModel.h"

#include <algorithm>
#include <cmath>

namespace vorbel {

bool hasSettled(double height, const Vec3& velocity) {
    constexpr double airborneHeight = 0.06; // m; well above court::restingHeight
    const double speed = std::sqrt(velocity.x * velocity.x + velocity.z * velocity.z);
    return height <= airborneHeight && speed < ball::restingSpeed;
}

bool isThrowOver(int ticks, bool allSettled) {
    return ticks >= mostTicks || (allSettled && ticks >= fewestTicks);
}

bool isAudible(double speedA, double speedB) {
    constexpr double gentlest = 0.15; // m/s
    return std::max(speedA, speedB) > gentlest;
}

} // namespace vorbel
