#include "narration/Standing.h"

#include "rules/CourtGeometry.h"

#include <gtest/gtest.h>

namespace vorbel::narration {
namespace {

constexpr AppLanguage en = AppLanguage::en;

Vec3 at(double x, double z) {
    return court::restingAt({x, 0, z});
}

Position aroundJack() {
    return {.jack = at(0, -6),
            .red = {at(0, -6.31), at(1.1, -6)},
            .blue = {at(-0.58, -6), at(0, -5.4), at(0, -8.5)}};
}

TEST(StandingTest, TheClosestSideIsNamedThenTheOther) {
    EXPECT_EQ(closest(aroundJack(), en), "Red is closest, 31 centimetres. Blue 58 centimetres.");
    EXPECT_EQ(closest({.jack = at(0, -6), .red = {at(0, -5)}, .blue = {at(0, -5.5)}}, en),
              "Blue is closest, 50 centimetres. Red 1 metre.");
}

TEST(StandingTest, ASideAloneIsClosest) {
    EXPECT_EQ(closest({.jack = at(0, -6), .red = {at(0, -5), at(0, -6.2)}}, en),
              "Red is closest, 20 centimetres.");
}

TEST(StandingTest, ExactlyEqualDistancesAreSaidAsSuch) {
    const Position equal{.jack = at(0, -6), .red = {at(0, -5.5), at(0, -4)}, .blue = {at(0, -6.5)}};
    EXPECT_EQ(closest(equal, en), "Red and blue are equally close, 50 centimetres.");
    EXPECT_EQ(order(equal, en), "Red and blue are equally close, 50 centimetres. Red 2 metres.");
    const Position nearlyEqual{.jack = at(0, -6), .red = {at(0, -5.5)}, .blue = {at(0, -6.4999)}};
    EXPECT_EQ(closest(nearlyEqual, en), "Blue is closest, 50 centimetres. Red 50 centimetres.");
}

TEST(StandingTest, TheOrderNamesEveryBallFromTheClosestToTheFarthest) {
    EXPECT_EQ(order(aroundJack(), en), "Red is closest, 31 centimetres. Blue 58 centimetres. "
                                       "Blue 60 centimetres. Red 1.1 metres. Blue 2.5 metres.");
}

TEST(StandingTest, WithoutJackOrBallsNoSideIsClosest) {
    EXPECT_EQ(closest({.jack = {}, .red = {at(0, -5)}}, en), "");
    EXPECT_EQ(order({.jack = at(0, -5)}, en), "");
}

TEST(StandingTest, EverythingIsJackOrderBallsLeftAndScore) {
    const Standing standing{aroundJack(), BallColor::blue, {.red = 4, .blue = 3}, {.red = 0, .blue = 2}};
    EXPECT_EQ(everything(standing, en),
              "Jack 5.6 metres away, 1 metre to the left. Red is closest, 31 centimetres. "
              "Blue 58 centimetres. Blue 60 centimetres. Red 1.1 metres. Blue 2.5 metres. "
              "Balls left: red 4, blue 3. Score: red 0, blue 2.");
}

TEST(StandingTest, EverythingIsSaidInTheLanguageAskedFor) {
    const Standing standing{{.jack = at(1, -6.5), .blue = {at(1, -6.29)}}, BallColor::blue, {6, 5}, {3, 0}};
    EXPECT_EQ(everything(standing, AppLanguage::ru),
              "До кона 6 метров, прямо впереди. Ближе всех синие: 21 сантиметр. "
              "Осталось мячей: у красных 6, у синих 5. Счёт: красные 3, синие 0.");
}

} // namespace
} // namespace vorbel::narration
