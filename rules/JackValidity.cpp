#include "rules/JackValidity.h"

#include "rules/CourtGeometry.h"

#include <algorithm>
#include <cmath>

namespace vorbel {

bool isOutOfBounds(const Vec3& position) {
    return std::abs(position.x) > court::sideLine;
}

bool jackCrossedVLine(const Vec3& position) {
    constexpr double depth = court::vLineApexZ - court::vLineSideZ;
    const double towardsSide = std::min(std::abs(position.x) / court::sideLine, 1.0);
    return position.z <= court::vLineApexZ - depth * towardsSide;
}

bool isValidJack(const Vec3& position) {
    return !isOutOfBounds(position) && jackCrossedVLine(position);
}

} // namespace vorbel
