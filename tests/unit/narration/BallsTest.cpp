#include "narration/Balls.h"

#include "rules/CourtGeometry.h"

#include <gtest/gtest.h>

namespace vorbel::narration {
namespace {

constexpr AppLanguage en = AppLanguage::en;

Vec3 at(double x, double z) {
    return court::restingAt({x, 0, z});
}

// Red throws from x = −1, blue from x = 1, both from z = −0.5.
TEST(BallsTest, TheJackIsSaidAsItsThrowerSeesIt) {
    const Position position{.jack = at(-1.4, -6.7)};
    EXPECT_EQ(jack(position, BallColor::red, en), "Jack 6.2 metres away, 0.4 metres to the left.");
    EXPECT_EQ(jack(position, BallColor::blue, en), "Jack 6.6 metres away, 2.4 metres to the left.");
    EXPECT_EQ(jack({.jack = at(0, -3.5)}, BallColor::red, en), "Jack 3.2 metres away, 1 metre to the right.");
}

TEST(BallsTest, AJackLessThanFiveCentimetresAsideIsStraightAhead) {
    EXPECT_EQ(jack({.jack = at(-1.049, -5.5)}, BallColor::red, en), "Jack 5 metres away, straight ahead.");
    EXPECT_EQ(jack({.jack = at(-1.051, -5.5)}, BallColor::red, en),
              "Jack 5 metres away, 0.1 metres to the left.");
}

TEST(BallsTest, WithoutAJackThereIsNone) {
    EXPECT_EQ(jack({.jack = {}, .red = {at(0, -5)}}, BallColor::red, en), "No jack on the court.");
}

// Throws travel towards −z.
TEST(BallsTest, ABallRestsShortOfTheJackOrBeyondItAndToOneSide) {
    EXPECT_EQ(atRest(at(0.1, -5.8), at(0, -6), en),
              "Ball at rest, 20 centimetres short of the jack. 10 centimetres to its right.");
    EXPECT_EQ(atRest(at(-0.01, -6.31), at(0, -6), en),
              "Ball at rest, 31 centimetres beyond the jack. 1 centimetre to its left.");
}

TEST(BallsTest, WhatRoundsToNothingIsLevelOrUnsaid) {
    EXPECT_EQ(atRest(at(0.3, -6.004), at(0, -6), en),
              "Ball at rest, level with the jack. 30 centimetres to its right.");
    EXPECT_EQ(atRest(at(0.004, -5.5), at(0, -6), en), "Ball at rest, 50 centimetres short of the jack.");
}

TEST(BallsTest, FromAMetreOnDistancesAreSaidInMetres) {
    EXPECT_EQ(atRest(at(0, -5.006), at(0, -6), en), "Ball at rest, 99 centimetres short of the jack.");
    EXPECT_EQ(atRest(at(0, -5.004), at(0, -6), en), "Ball at rest, 1 metre short of the jack.");
    EXPECT_EQ(atRest(at(1.25, -4), at(0, -6), AppLanguage::ru),
              "Мяч остановился за 2 метра до кона. На 1,3 метра правее кона.");
}

TEST(BallsTest, ABallBeyondASideLineIsOut) {
    EXPECT_EQ(atRest(at(3.01, -5), at(0, -6), en), "The ball is out.");
    EXPECT_NE(atRest(at(3, -5), at(0, -6), en), "The ball is out.");
}

} // namespace
} // namespace vorbel::narration
