// Where balls change the picture.
#include "platform/render/TrackedBalls.h"

#include "platform/render/BallPlan.h"
#include "tests/unit/render/TrackedScene.h"

#include <algorithm>

#include <gmock/gmock.h>

namespace vorbel {
namespace {

class TrackedBallsTest : public TrackedScene {
protected:
    TrackedBallsTest() {
        frame.items.push_back({&nodes[1], Box{1, 1, 1}, {}, glm::translate(glm::mat4(1), {3, 0.5F, -12}), 1});
        frame.balls = {ballAt(2, {0, 0.1F, -4}), ballAt(3, {1, 0.1F, -8})};
        follow();
    }

    [[nodiscard]] DrawnBall ballAt(std::size_t node, const glm::vec3& place) const {
        return {.node = &nodes[node], .centre = place, .radius = 0.1F};
    }
    void follow() {
        const Damage& damage = rest.follow(frame, width, height);
        balls.follow(frame.balls, rest, damage);
        rest.markDrawn();
    }
    [[nodiscard]] bool anyContains(const PixelRect& rect) const {
        return std::ranges::any_of(balls.regions(),
                                   [&](const PixelRect& region) { return region.contains(rect); });
    }

    TrackedFrame rest{8192};
    TrackedBalls balls;
};

TEST_F(TrackedBallsTest, TheFirstFrameIsAllNew) {
    EXPECT_TRUE(balls.whole());
}

TEST_F(TrackedBallsTest, BallsAtRestChangeNothing) {
    follow();
    EXPECT_FALSE(balls.whole());
    EXPECT_TRUE(balls.regions().empty());
}

TEST_F(TrackedBallsTest, MovingBallChangesWhereItWasAndWhereItIs) {
    const PixelRect before = balls.balls()[1].all; // the nearer one
    frame.balls[0] = ballAt(2, {0.5F, 0.1F, -3});
    follow();
    EXPECT_FALSE(balls.whole());
    EXPECT_TRUE(anyContains(before));
    EXPECT_TRUE(anyContains(balls.balls()[1].all));
    EXPECT_FALSE(anyContains(balls.balls()[0].seen)) << "the other one has not moved";
}

TEST_F(TrackedBallsTest, BallThatIsGoneLeavesItsPlaceToBeDrawn) {
    const PixelRect before = balls.balls()[1].all;
    frame.balls.erase(frame.balls.begin());
    follow();
    EXPECT_THAT(balls.regions(), testing::ElementsAre(before));
}

TEST_F(TrackedBallsTest, LinesAroundABallHaveRoom) {
    const PixelRect before = balls.balls()[1].seen; // the nearer one
    frame.balls[0].outlined = true;
    follow();
    EXPECT_GE(before.left - balls.balls()[1].seen.left, 2) << "3.5 pixels around it, where 1.5 were";
    EXPECT_TRUE(anyContains(balls.balls()[1].seen));
    frame.balls[0].outlined = false;
    const PixelRect outlined = balls.balls()[1].seen;
    follow();
    EXPECT_TRUE(anyContains(outlined)) << "they go";
}

TEST_F(TrackedBallsTest, PlanTellsWhetherSomeBallIsAdorned) {
    BallPlan plan;
    plan.make(balls, rest);
    EXPECT_FALSE(plan.adorned());
    frame.balls[0].mark = Mark::cross;
    follow();
    plan.make(balls, rest);
    EXPECT_TRUE(plan.adorned());
    EXPECT_EQ(plan.quads().back().look, glm::vec2(2, 0)) << "as the shader reads it";
}

TEST_F(TrackedBallsTest, FartherBallsAreDrawnFirst) {
    std::ranges::swap(frame.balls[0], frame.balls[1]);
    follow();
    EXPECT_LT(balls.balls()[0].ball.centre.z, balls.balls()[1].ball.centre.z);
}

TEST_F(TrackedBallsTest, ShadowInViewOfABallBesideItsOwnGroundIsHeld) {
    frame.items.erase(frame.items.begin() + 1);
    frame.balls = {ballAt(2, {0, 0.7F, -1.2F})}; // its shadow on the floor is below the picture
    frame.items.front().world = glm::translate(glm::mat4(1), {0, -1, 0});
    follow();
    EXPECT_EQ(balls.balls()[0].all.bottom, 0) << "what lies above the floor may still show it";
}

TEST_F(TrackedBallsTest, BallThatARegionTouchesLiesInsideIt) {
    frame.balls = {ballAt(2, {0, 0.1F, -4}), ballAt(3, {0.21F, 0.1F, -4.1F})};
    follow();
    frame.balls[0] = ballAt(2, {-0.01F, 0.1F, -4});
    follow();
    for (const BallTraces& traces : balls.balls()) {
        for (const PixelRect& region : balls.regions()) {
            EXPECT_TRUE(!region.overlaps(traces.seen) || region.contains(traces.seen));
        }
    }
}

TEST_F(TrackedBallsTest, PlanListsForEachRegionTheBallsThatMatterThere) {
    frame.balls[0] = ballAt(2, {0, 0.1F, -3.9F});
    follow();
    BallPlan plan;
    plan.make(balls, rest);
    ASSERT_EQ(plan.regions(), 1U);
    EXPECT_EQ(plan.balls(), 1U) << "the other one stays as it is drawn";
    const BallQuad& region = plan.quads().front();
    EXPECT_EQ(region.listed.y, 1);
    EXPECT_EQ(glm::vec3(plan.uniforms().places.at(static_cast<std::size_t>(region.listed.x))),
              frame.balls[0].centre);
    EXPECT_EQ(plan.quads().back().listed.y, 0) << "a ball does not shade itself";
}

TEST_F(TrackedBallsTest, ListsOfManyBallsHaveRoom) {
    frame.balls.clear();
    for (std::size_t i = 0; i < mostBalls; ++i) {
        const std::size_t row = i / 8;
        frame.balls.push_back(
            ballAt(2, {0.15F * static_cast<float>(i % 8), 0.1F, -4 - 0.15F * static_cast<float>(row)}));
    }
    follow();
    BallPlan plan;
    plan.make(balls, rest);
    ASSERT_EQ(plan.balls(), mostBalls);
    for (const BallQuad& quad : plan.quads()) {
        EXPECT_LE(quad.listed.x + quad.listed.y, static_cast<float>(mostPlaces));
    }
}

} // namespace
} // namespace vorbel
