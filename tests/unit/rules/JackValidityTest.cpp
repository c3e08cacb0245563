#include "rules/JackValidity.h"

#include "rules/CourtGeometry.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vorbel {

TEST(JackValidityTest, AJackCountsBeyondTheVAndBetweenTheSideLines) {
    struct {
        double x, z;
        bool valid;
    } const cases[] = {
        {0, -1.5, true},     {0, -1.4999, false},    // on the apex, and a tenth of a millimetre short of it
        {1.5, -2.5, true},   {1.5, -2.4999, false},  // half-way to the right side line
        {-1.5, -2.5, true},  {-1.5, -2.4999, false}, // and to the left
        {3.0, -3.5, true},   {3.0, -3.4999, false},  // where the V meets the side line
        {-3.0, -3.5, true},  {-3.0, -3.4999, false},
        {3.0001, -8, false}, {-3.0001, -8, false}, // over a side line
        {3.0, -8, true},     {-3.0, -8, true},     // on it
        {0, -13, true},                            // past the far end
    };
    for (const auto& [x, z, valid] : cases) {
        EXPECT_EQ(isValidJack({x, 0.035, z}), valid) << x << ", " << z;
    }
}

TEST(JackValidityTest, BesideTheCourtTheVGoesOnStraightAcross) {
    EXPECT_TRUE(jackCrossedVLine({4, 0, -3.5}));
    EXPECT_FALSE(jackCrossedVLine({4, 0, -3.4999}));
}

TEST(JackValidityTest, TheHeightDoesNotMatter) {
    EXPECT_TRUE(isValidJack({0, 2, -6}));
    EXPECT_TRUE(isOutOfBounds({3.1, 2, -6}));
}

// What is drawn and what is judged are the same line: a jack on any point of it has crossed it.
TEST(JackValidityTest, ThePointsOfTheDrawnLineAreValid) {
    for (double share = 0; share <= 1; share += 0.125) {
        const double x = share * court::sideLine;
        const double z = std::lerp(court::vLineApexZ, court::vLineSideZ, share);
        EXPECT_TRUE(jackCrossedVLine({x, 0, z - 1e-9})) << share;
        EXPECT_FALSE(jackCrossedVLine({x, 0, z + 1e-9})) << share;
    }
}

} // namespace vorbel
