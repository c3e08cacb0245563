#include "narration/Aiming.h"

#include <gtest/gtest.h>

namespace vorbel::narration {
namespace {

constexpr AppLanguage en = AppLanguage::en;

TEST(AimingTest, TheAngleIsSaidInWholeDegreesWithItsSide) {
    EXPECT_EQ(angle(-0.15, 0, en), "Angle 9 degrees left.");
    EXPECT_EQ(angle(0.15, 0, en), "Angle 9 degrees right.");
    EXPECT_EQ(angle(0.0175, 0, en), "Angle 1 degree right.");
    EXPECT_EQ(angle(-0.785398, 0, en), "Angle 45 degrees left.");
}

TEST(AimingTest, AnAngleThatRoundsToNothingIsStraightAhead) {
    EXPECT_EQ(angle(0, 0, en), "Straight ahead.");
    EXPECT_EQ(angle(0.0087, 0, en), "Straight ahead.");
    EXPECT_EQ(angle(-0.0087, 0, en), "Straight ahead.");
    EXPECT_EQ(angle(0.0088, 0, en), "Angle 1 degree right.");
}

TEST(AimingTest, WhoeverAimsFinelyHearsTenths) {
    EXPECT_EQ(angle(0.01, 1, en), "Angle 0.6 degrees right.");
    EXPECT_EQ(angle(-0.02, 1, AppLanguage::de), "Richtung 1,1 Grad links.");
    EXPECT_EQ(elevation(0.05, 1, en), "Elevation 2.9 degrees.");
}

TEST(AimingTest, TheElevationIsSaidInDegrees) {
    EXPECT_EQ(elevation(0, 0, en), "Elevation 0 degrees.");
    EXPECT_EQ(elevation(0.1, 0, en), "Elevation 6 degrees.");
    EXPECT_EQ(elevation(0.1, 0, AppLanguage::ru), "Высота броска 6 градусов.");
}

TEST(AimingTest, ThePowerIsSaidInWholePercent) {
    EXPECT_EQ(power(61.6, en), "Power 62 of 100.");
    EXPECT_EQ(power(100, AppLanguage::zh), "力度百分之100。");
}

} // namespace
} // namespace vorbel::narration
