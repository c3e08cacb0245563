#include "rules/Scoring.h"

#include <glm/geometric.hpp>

#include <algorithm>
#include <cmath>

namespace vorbel {

namespace {

constexpr double equidistance = 0.0005; // m: balls within this of the closest pair count as equally far

int closerThan(double limit, std::span<const Vec3> balls, const Vec3& jack) {
    return static_cast<int>(
        std::ranges::count_if(balls, [&](const Vec3& ball) { return glm::distance(ball, jack) < limit; }));
}

int equallyFar(double distance, std::span<const Vec3> balls, const Vec3& jack) {
    return static_cast<int>(std::ranges::count_if(balls, [&](const Vec3& ball) {
        return std::abs(glm::distance(ball, jack) - distance) < equidistance;
    }));
}

} // namespace

Points pointsOfEnd(const Position& position) {
    const Vec3& jack = position.jack.value();
    const double red = closestBall(position.red, jack).distance;
    const double blue = closestBall(position.blue, jack).distance;
    if (red < blue) {
        return {.red = closerThan(blue, position.red, jack)};
    }
    if (blue < red) {
        return {.blue = closerThan(red, position.blue, jack)};
    }
    // At infinity, without any ball, there is none to count.
    return {equallyFar(red, position.red, jack), equallyFar(blue, position.blue, jack)};
}

AfterEnd afterEnd(int end, Points score) {
    if (end < endsPerMatch) {
        return AfterEnd::nextEnd;
    }
    return score.red == score.blue ? AfterEnd::extraEnd : AfterEnd::matchOver;
}

BallColor winner(Points score) {
    return score.red > score.blue ? BallColor::red : BallColor::blue;
}

} // namespace vorbel
