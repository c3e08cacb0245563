#include "rules/Position.h"

#include <glm/geometric.hpp>

#include <limits>

namespace vorbel {

ClosestBall closestBall(std::span<const Vec3> balls, const Vec3& point) {
    ClosestBall closest{.distance = std::numeric_limits<double>::infinity()};
    for (const Vec3& ball : balls) {
        const double distance = glm::distance(ball, point);
        if (distance < closest.distance) {
            closest = {ball, distance};
        }
    }
    return closest;
}

} // namespace vorbel
