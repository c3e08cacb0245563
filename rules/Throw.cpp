#include "rules/Throw.h"

#include "rules/BallModel.h"

#include <cmath>

namespace vorbel {

Launch launch(const Aim& aim) {
    constexpr double leastRollingSpeed = 1e-4; // m/s
    const double speed = aim.power / 100 * fullSpeed;
    const double horizontal = speed * std::cos(aim.pitch);
    const double sine = std::sin(aim.angle);
    const double cosine = std::cos(aim.angle);
    Launch launch{.velocity = {horizontal * sine, speed * std::sin(aim.pitch), -horizontal * cosine}};
    if (horizontal > leastRollingSpeed) {
        launch.angularVelocity = Vec3(-cosine, 0, -sine) * (horizontal / ball::radius);
    }
    return launch;
}

double powerForDistance(double distance) {
    // Under dv/dt = −c·v a ball loses c metres a second of speed for each metre that it rolls.
    return (ball::damping * distance + ball::restingSpeed) / fullSpeed * 100.0;
}

} // namespace vorbel
