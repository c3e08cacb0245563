#include "rules/Aim.h"

#include <gtest/gtest.h>

namespace vorbel {

TEST(AimTest, TheAngleStaysWithinFortyFiveDegreesAndThePitchBelowSixty) {
    constexpr double pi = 3.141592653589793;
    EXPECT_EQ(aim::clampAngle(1), pi / 4);
    EXPECT_EQ(aim::clampAngle(-1), -pi / 4);
    EXPECT_EQ(aim::clampAngle(0.5), 0.5);
    EXPECT_EQ(aim::clampPitch(1.1), pi / 3);
    EXPECT_EQ(aim::clampPitch(-0.1), 0);
    EXPECT_EQ(aim::clampPitch(0.5), 0.5);
}

TEST(AimTest, ThePowerSwingsAtTheSpeedOfTheSportClass) {
    EXPECT_EQ(aim::powerStep(BocciaClass::bc1), 0.85);
    EXPECT_EQ(aim::powerStep(BocciaClass::bc2), 0.6);
    EXPECT_EQ(aim::powerStep(BocciaClass::bc3), 0.3);
    EXPECT_EQ(aim::powerStep(BocciaClass::bc4), 0.6);
}

TEST(AimTest, ThePowerTurnsRoundOnceItIsBeyondItsRange) {
    EXPECT_FALSE(aim::turnsRound(100));
    EXPECT_TRUE(aim::turnsRound(100.001));
    EXPECT_FALSE(aim::turnsRound(10));
    EXPECT_TRUE(aim::turnsRound(9.999));
}

TEST(AimTest, OnlyBc3ThrowsFromARampAndOnlyBc1ReleasesUnsurely) {
    for (const BocciaClass sportClass : allBocciaClasses) {
        EXPECT_EQ(aim::mayRaise(sportClass), sportClass != BocciaClass::bc3);
        EXPECT_EQ(aim::hasReleaseError(sportClass), sportClass == BocciaClass::bc1);
    }
}

TEST(AimTest, ItsStepsAndLimitsAreThoseOfTheGame) {
    EXPECT_EQ(aim::angleStep, 0.05);
    EXPECT_EQ(aim::pitchStep, 0.05);
    EXPECT_EQ(aim::releaseError, 0.06);
    EXPECT_EQ(aim::startPower, 10);
}

} // namespace vorbel
