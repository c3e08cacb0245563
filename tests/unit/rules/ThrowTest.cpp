#include "rules/Throw.h"

#include "tests/ExpectNear.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace vorbel {

using std::numbers::pi;
using test::expectNear;

TEST(ThrowTest, ABallLeavesAlongItsAimAndRolls) {
    struct {
        Aim aim;
        Vec3 velocity, spin;
    } const cases[] = {
        {{0, 0, 10}, {0, 0, -0.5}, {-10, 0, 0}},
        {{pi / 4, 0, 100},
         {3.5355339059327378, 0, -3.5355339059327378},
         {-70.71067811865476, 0, -70.71067811865476}},
        {{-pi / 4, 0, 100},
         {-3.5355339059327378, 0, -3.5355339059327378},
         {-70.71067811865476, 0, 70.71067811865476}},
        {{0, pi / 3, 100}, {0, 4.330127018922193, -2.5}, {-50, 0, 0}},
        {{0, 0, 101}, {0, 0, -5.05}, {-101, 0, 0}}, // an overshoot is not clamped
    };
    for (const auto& [aim, velocity, spin] : cases) {
        const Launch launched = launch(aim);
        expectNear(launched.velocity, velocity);
        expectNear(launched.angularVelocity, spin);
    }
}

TEST(ThrowTest, ABallThrownStraightUpGetsNoSpin) {
    EXPECT_EQ(launch({0, pi / 2, 100}).angularVelocity, Vec3(0));
    EXPECT_EQ(launch({0, 0, 0.0019}).angularVelocity, Vec3(0)); // 0.095 mm/s
    EXPECT_NE(launch({0, 0, 0.0021}).angularVelocity, Vec3(0)); // 0.105 mm/s
}

TEST(ThrowTest, ThePowerForADistanceRollsTheBallThatFar) {
    EXPECT_DOUBLE_EQ(powerForDistance(5), 45);
    EXPECT_DOUBLE_EQ(powerForDistance(0), 5);
    // dv/dt = −0.4·v from that speed: after rolling D metres 0.25 m/s are left.
    for (const double distance : {0.5, 3.0, 8.0}) {
        const double start = powerForDistance(distance) / 100 * fullSpeed;
        EXPECT_NEAR(start - 0.4 * distance, 0.25, 1e-12);
    }
}

} // namespace vorbel
