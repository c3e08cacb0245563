#include "rules/TurnOrder.h"

#include <gtest/gtest.h>

namespace vorbel {

namespace {

constexpr Vec3 jack{0, 0.035, -6};

// That far from the jack, to the right.
Vec3 at(double distance) {
    return jack + Vec3(distance, 0, 0);
}

} // namespace

TEST(TurnOrderTest, TheSideThatIsNotClosestThrows) {
    struct Case {
        const char* name = "";
        Position position;
        BallColor next{};
    };
    const Case cases[] = {
        {"red is closer", {jack, {at(0.1)}, {at(0.2)}}, BallColor::blue},
        {"blue is closer", {jack, {at(0.2)}, {at(0.1)}}, BallColor::red},
        {"red is closer by its second ball", {jack, {at(0.5), at(0.1)}, {at(0.2)}}, BallColor::blue},
        {"blue is closer by its second ball", {jack, {at(0.2)}, {at(0.5), at(0.1)}}, BallColor::red},
        {"a tie is red's", {jack, {at(0.25)}, {at(-0.25)}}, BallColor::red},
        {"no ball in play", {jack, {}, {}}, BallColor::red},
        {"only blue in play", {jack, {}, {at(0.1)}}, BallColor::red},
        {"only red in play", {jack, {at(0.1)}, {}}, BallColor::blue},
        {"no jack", {{}, {at(0.1)}, {at(0.2)}}, BallColor::red},
        {"height counts", {jack, {jack + Vec3(0, 0.3, 0)}, {at(0.2)}}, BallColor::red},
    };
    for (const auto& [name, position, next] : cases) {
        EXPECT_EQ(nextToThrow(position, {3, 3}), next) << name;
    }
}

TEST(TurnOrderTest, ASideThatHasThrownAllItsBallsNeverThrowsAgain) {
    const Position redCloser{jack, {at(0.1)}, {at(0.2)}};
    const Position blueCloser{jack, {at(0.2)}, {at(0.1)}};
    EXPECT_EQ(nextToThrow(redCloser, {2, 0}), BallColor::red);
    EXPECT_EQ(nextToThrow(blueCloser, {0, 2}), BallColor::blue);
    EXPECT_EQ(nextToThrow({}, {0, 2}), BallColor::blue); // not even without a jack
}

} // namespace vorbel
