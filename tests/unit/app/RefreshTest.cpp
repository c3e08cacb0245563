#include "tests/unit/app/ViewFixture.h"

namespace vorbel {

class RefreshTest : public ViewTest {
protected:
    int refreshes = 0;

    RefreshTest() {
        QObject::connect(&view.changes(), &MatchChanges::changed, &view, [this] { ++refreshes; });
    }
};

TEST_F(RefreshTest, ABurstOfChangesIsShownOnce) {
    match.message = "a";
    match.redScore = 2;
    match.message = "b";
    EXPECT_EQ(refreshes, 0);
    letQueueRun();
    EXPECT_EQ(refreshes, 1);
    EXPECT_EQ(view.hud()->message(), QStringLiteral("b"));
    EXPECT_EQ(view.hud()->redScore(), 2);
}

TEST_F(RefreshTest, ChangesWaitWhileAPictureIsBeingDrawn) {
    view.changes().hold();
    match.redScore = 1;
    letQueueRun();
    match.redScore = 2;
    letQueueRun();
    EXPECT_EQ(refreshes, 0);
    view.changes().release();
    EXPECT_EQ(refreshes, 1);
    EXPECT_EQ(view.hud()->redScore(), 2);
    match.redScore = 3;
    letQueueRun();
    EXPECT_EQ(view.hud()->redScore(), 3);
}

TEST_F(RefreshTest, APictureThatBeginsAfterTheChangeHoldsItBackToo) {
    match.redScore = 1;
    view.changes().hold();
    letQueueRun();
    EXPECT_EQ(refreshes, 0);
    view.changes().release();
    EXPECT_EQ(view.hud()->redScore(), 1);
}

TEST_F(RefreshTest, TheMatchTicksFromTheFirstAppearanceOn) {
    int ticks = 0;
    const Subscription counting = match.onTick([&ticks] { ++ticks; });
    platform.queue.advance(1);
    EXPECT_EQ(ticks, 0);
    view.appear();
    platform.queue.advance(1);
    EXPECT_EQ(ticks, 50);
}

TEST_F(RefreshTest, ThePointerTurnsToTheAimWithinATenthOfASecond) {
    view.appear();
    hideMenu();
    keyboard.pressAction();
    keyboard.pressRight();
    keyboard.pressUp();
    const Quat target = rotationFromEuler({0.05, -0.05, 0});
    const auto distanceToTarget = [this, &target] {
        return 1 - std::abs(glm::dot(pointerOrientation(), target));
    };
    const double atFirst = distanceToTarget();
    platform.queue.advance(0.05);
    const double halfWay = distanceToTarget();
    platform.queue.advance(0.08);
    EXPECT_GT(atFirst, halfWay);
    EXPECT_GT(halfWay, 1e-6);
    EXPECT_NEAR(distanceToTarget(), 0, 1e-12);
}

TEST_F(RefreshTest, WithoutAPointerNothingIsAnimatedAndNothingFails) {
    match.scene.root->removeChild(*match.scene.root->findChild("pointer"));
    match.aimAngle = 0.3;
    letQueueRun();
    EXPECT_EQ(refreshes, 1);
}

} // namespace vorbel
