// What a new frame changes in the picture of the last one.
#include "platform/render/TrackedFrame.h"

#include "tests/unit/render/TrackedScene.h"

#include <gmock/gmock.h>

namespace vorbel {
namespace {

class TrackedFrameTest : public TrackedScene {
protected:
    TrackedFrameTest() {
        frame.items.insert(frame.items.end(), {ballAt(1, -4), ballAt(2, -8), postAt(4, {-1.5F, 0.05F, -2}),
                                               postAt(5, {3, 0.05F, -12})});
        follow();
    }

    [[nodiscard]] DrawItem ballAt(std::size_t node, float z) const {
        const glm::mat4 place = glm::translate(glm::mat4(1), {0, 0.1F, z});
        return {&nodes[node], Sphere{1}, {}, glm::scale(place, glm::vec3(0.1F)), 1};
    }
    // Two of them keep what the shadow map holds the same while balls move between them.
    [[nodiscard]] DrawItem postAt(std::size_t node, const glm::vec3& place) const {
        return {&nodes[node],
                Box{1, 1, 1},
                {},
                glm::scale(glm::translate(glm::mat4(1), place), glm::vec3(0.1F)),
                1};
    }
    const Damage& follow() { return followAndDraw(width); }
    const Damage& followAndDraw(int pictureWidth) {
        const Damage& damage = tracked.follow(frame, pictureWidth, height);
        tracked.markDrawn();
        return damage;
    }

    TrackedFrame tracked{8192};
};

TEST_F(TrackedFrameTest, TheFirstFrameIsAllNew) {
    EXPECT_TRUE(TrackedFrame(8192).follow(frame, width, height).picture);
}

TEST_F(TrackedFrameTest, ShadowMapIsNoLargerThanTheDriverAllows) {
    TrackedFrame small(256);
    small.follow(frame, width, height);
    small.markDrawn();
    frame.items[1] = ballAt(1, -3);
    const Damage& damage = small.follow(frame, width, height);
    EXPECT_EQ(small.frame().spot->shadowMapSize, 256);
    ASSERT_EQ(damage.lit.size(), 2U);
    const PixelRect wholeMap{0, 0, 256, 256};
    EXPECT_TRUE(wholeMap.contains(damage.lit[0]));
    EXPECT_TRUE(wholeMap.contains(damage.lit[1]));
    small.markDrawn();
    EXPECT_TRUE(small.follow(frame, width, height).nothing());
}

TEST_F(TrackedFrameTest, ForgottenFrameIsAllNew) {
    tracked.forget();
    EXPECT_TRUE(follow().picture);
}

TEST_F(TrackedFrameTest, ChangesThatWereNotDrawnAreNotForgotten) {
    frame.items[1] = ballAt(1, -3);
    tracked.follow(frame, width, height);
    EXPECT_TRUE(follow().picture);
    EXPECT_TRUE(follow().nothing());
}

TEST_F(TrackedFrameTest, TheSameFrameChangesNothing) {
    EXPECT_TRUE(follow().nothing());
}

TEST_F(TrackedFrameTest, MovingBallChangesWhereItWasAndWhereItIs) {
    const PixelRect before = tracked.bounds()[1].seen;
    frame.items[1] = ballAt(1, -3);
    const Damage& damage = follow();
    EXPECT_FALSE(damage.picture);
    EXPECT_FALSE(damage.looks);
    EXPECT_THAT(damage.moved, testing::ElementsAre(1));
    ASSERT_EQ(damage.seen.size(), 2U);
    EXPECT_TRUE(damage.seen[0].contains(before));
    EXPECT_TRUE(damage.seen[1].contains(tracked.bounds()[1].seen));
    EXPECT_TRUE(damage.seen[1].contains(tracked.bounds()[1].mirror));
    EXPECT_EQ(damage.lit.size(), 2U);
}

TEST_F(TrackedFrameTest, BallThatIsGoneLeavesDamageThereOnly) {
    const PixelRect before = tracked.bounds()[1].seen;
    frame.items.erase(frame.items.begin() + 1);
    const Damage& damage = follow();
    EXPECT_TRUE(damage.looks);
    ASSERT_EQ(damage.seen.size(), 1U);
    EXPECT_TRUE(damage.seen[0].contains(before));
}

TEST_F(TrackedFrameTest, NewBallInTheMiddleDamagesOnlyItsOwnPlace) {
    frame.items.insert(frame.items.begin() + 1, ballAt(3, -6));
    const Damage& damage = follow();
    EXPECT_FALSE(damage.picture);
    ASSERT_EQ(damage.seen.size(), 1U);
    EXPECT_TRUE(damage.seen[0].contains(tracked.bounds()[1].seen));
    EXPECT_EQ(tracked.bounds().size(), 6U);
}

TEST_F(TrackedFrameTest, AnotherNodeAtTheSamePlaceIsAChange) {
    frame.items[1].node = &nodes[3];
    EXPECT_FALSE(follow().seen.empty());
}

TEST_F(TrackedFrameTest, AnotherColourIsAChangeOfLooks) {
    frame.items[1].material.diffuse = colors::systemRed;
    EXPECT_TRUE(follow().looks);
}

TEST_F(TrackedFrameTest, SizeCameraLightAndFloorConcernTheWholePicture) {
    EXPECT_TRUE(followAndDraw(width + 1).picture);
    frame.camera.world = glm::translate(glm::mat4(1), {0, 2, 0});
    EXPECT_TRUE(follow().picture);
    frame.ambient = {0.1F, 0.1F, 0.1F};
    EXPECT_TRUE(follow().picture);
    frame.items[0].material.diffuse = colors::systemRed;
    EXPECT_TRUE(follow().picture);
    frame.spot->position.y = 11;
    EXPECT_TRUE(follow().shadowMap);
    frame.items.erase(frame.items.begin());
    EXPECT_TRUE(follow().picture);
    EXPECT_TRUE(follow().nothing());
}

TEST_F(TrackedFrameTest, OpaqueBoxHidesTheFloorBelowIt) {
    EXPECT_FALSE(tracked.hidesFloor({290, 50, 310, 60}));
    const glm::mat4 place = glm::translate(glm::mat4(1), {0, 0.05F, -5});
    frame.items.push_back({&nodes[3], Box{1, 1, 1}, {}, glm::scale(place, {4, 0.1F, 9}), 1});
    follow();
    EXPECT_TRUE(tracked.hidesFloor({290, 50, 310, 60}));
    EXPECT_FALSE(tracked.hidesFloor({0, 150, 600, 160})) << "beside it";
    frame.items.back().opacity = 0.5F;
    follow();
    EXPECT_FALSE(tracked.hidesFloor({290, 50, 310, 60}));
}

} // namespace
} // namespace vorbel
