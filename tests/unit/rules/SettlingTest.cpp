#include "rules/Settling.h"

#include <gtest/gtest.h>

#include <limits>

namespace vorbel {

TEST(SettlingTest, ABallHasSettledWhenItIsLowAndSlowOverTheCourt) {
    struct {
        double height;
        Vec3 velocity;
        bool settled;
    } const cases[] = {
        {0.035, {0, 0, 0}, true},
        {0.06, {0, 0, 0}, true},
        {0.0601, {0, 0, 0}, false}, // in the air
        {0.035, {0, 0, -0.2499}, true},
        {0.035, {0, 0, -0.25}, false},
        {0.035, {0.25, 0, 0}, false},
        {0.035, {0.15, 0, 0.2}, false}, // 0.25 m/s
        {0.035, {0.15, 0, 0.1999}, true},
        {0.035, {0, -3, 0}, true}, // falling does not count
        {0.035, {std::numeric_limits<double>::quiet_NaN(), 0, 0}, false},
    };
    for (const auto& [height, velocity, settled] : cases) {
        EXPECT_EQ(hasSettled(height, velocity), settled)
            << height << " m, " << velocity.x << ", " << velocity.z;
    }
}

TEST(SettlingTest, AThrowLastsFromTwentySixTicksToThreeSeconds) {
    EXPECT_FALSE(isThrowOver(25, true));
    EXPECT_TRUE(isThrowOver(26, true));
    EXPECT_FALSE(isThrowOver(149, false));
    EXPECT_TRUE(isThrowOver(150, false));
}

TEST(SettlingTest, ContactsFasterThanFifteenCentimetresASecondAreHeard) {
    EXPECT_FALSE(isAudible(0.15, 0.15));
    EXPECT_TRUE(isAudible(0.1501, 0));
    EXPECT_TRUE(isAudible(0, 0.1501));
    EXPECT_FALSE(isAudible(0.1, 0.1)); // the faster of the two, not both together
}

} // namespace vorbel
