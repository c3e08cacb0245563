#include "rules/ComputerAim.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace vorbel {

using std::numbers::pi;

namespace {

// Straight ahead of red's box, which is at x = −1.
Target ahead(double distance, double multiplier = 1) {
    return {{-1, 0.035, -0.5 - distance}, multiplier};
}

double powerFor(double distance) {
    return (0.4 * distance + 0.25) / 5 * 100;
}

} // namespace

TEST(ComputerAimTest, WithoutErrorTheBallIsRolledToItsTarget) {
    const Aim aim = aimAt(ahead(5), BallColor::red, {});
    EXPECT_NEAR(aim.angle, 0, 1e-12);
    EXPECT_EQ(aim.pitch, 0);
    EXPECT_NEAR(aim.power, 45, 1e-9);
}

TEST(ComputerAimTest, AnglesArePositiveToTheRight) {
    EXPECT_NEAR(aimAt({{2, 0.035, -5.5}}, BallColor::blue, {}).angle, std::atan2(1, 5), 1e-12);
    EXPECT_NEAR(aimAt({{0, 0.035, -5.5}}, BallColor::blue, {}).angle, -std::atan2(1, 5), 1e-12);
}

TEST(ComputerAimTest, AnErrorMovesTheTargetAlongAndAcrossTheThrow) {
    const Aim right = aimAt(ahead(5), BallColor::red, {.sideways = 0.5});
    EXPECT_NEAR(right.angle, std::atan2(0.5, 5), 1e-12);
    const Aim longer = aimAt(ahead(5), BallColor::red, {.lengthwise = 0.5});
    EXPECT_NEAR(longer.angle, 0, 1e-12);
    EXPECT_NEAR(longer.power, powerFor(5.5), 1e-9);
    // Along a throw 45° to the left the right side is back and to the right.
    const Vec3 left{-1 - 3, 0.035, -0.5 - 3};
    const Aim oblique = aimAt({left}, BallColor::red, {.sideways = std::sqrt(2.0)});
    EXPECT_NEAR(oblique.angle, std::atan2(-2, 4), 1e-12);
}

TEST(ComputerAimTest, ATargetBesideTheConeIsThrownAtAlongItsEdge) {
    const Aim aim = aimAt({{3, 0.035, -1.5}}, BallColor::red, {});
    EXPECT_EQ(aim.angle, pi / 4);
    EXPECT_NEAR(aim.power, powerFor(5 / std::sqrt(2.0)), 1e-9); // (4, −1) seen along (1, −1)/√2
    EXPECT_EQ(aimAt({{-5, 0.035, -1.5}}, BallColor::red, {}).angle, -pi / 4);
}

TEST(ComputerAimTest, ATargetBehindTheThrowerIsTakenForTenCentimetres) {
    const Aim aim = aimAt({{-1, 0.035, 3}, 4.0}, BallColor::red, {});
    EXPECT_NEAR(aim.power, 4 * powerFor(0.1), 1e-9);
}

TEST(ComputerAimTest, ATargetOnTheSpotGivesTheWeakestThrow) {
    const Aim aim = aimAt({{-1, 0.035, -0.5}, 1.3}, BallColor::red, {});
    EXPECT_EQ(aim.angle, pi / 4);
    EXPECT_EQ(aim.power, 10); // 1.3 · 5.8
}

TEST(ComputerAimTest, OnTheSpotErrorsCountStraightDownTheCourt) {
    EXPECT_NEAR(aimAt({{-1, 0.035, -0.5}}, BallColor::red, {.lengthwise = 2}).angle, 0, 1e-12);
    EXPECT_NEAR(aimAt({{-1, 0.035, -0.501}}, BallColor::red, {.sideways = 1, .lengthwise = 2}).angle,
                std::atan2(1, 2.001), 1e-12);
}

TEST(ComputerAimTest, PaceMultipliesThePowerUpToFull) {
    EXPECT_NEAR(aimAt(ahead(7, 1.6), BallColor::red, {}).power, 97.6, 1e-9);
    EXPECT_EQ(aimAt(ahead(8, 1.6), BallColor::red, {}).power, 100);
    EXPECT_EQ(aimAt(ahead(0.1), BallColor::red, {}).power, 10);
}

TEST(ComputerAimTest, EachLevelErrsLessThanTheOneBelow) {
    struct {
        AIDifficulty level;
        double sideways, lengthwise, bias;
    } const cases[] = {
        {AIDifficulty::easy, 0.8, 1.2, 0.18},
        {AIDifficulty::medium, 0.1, 0.15, 0.0225},
        {AIDifficulty::hard, 0.03, 0.05, 0.0075},
        {AIDifficulty::ultra, 0, 0, 0},
    };
    for (const auto& [level, sideways, lengthwise, bias] : cases) {
        EXPECT_EQ(largestError(level).sideways, sideways);
        EXPECT_EQ(largestError(level).lengthwise, lengthwise);
        EXPECT_NEAR(lengthBias(level), bias, 1e-12);
    }
}

} // namespace vorbel
