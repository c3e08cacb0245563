#include "tests/unit/app/ViewFixture.h"

namespace vorbel {

class RefreshTest : public ViewTest {
protected:
    int refreshes = 0;

    RefreshTest() {
        hideMenu();
        QObject::connect(&view.changes(), &MatchChanges::changed, &view, [this] { ++refreshes; });
    }
};

TEST_F(RefreshTest, ABurstOfChangesIsShownOnce) {
    const QString before = view.hud()->message();
    keyboard.pressAction(); // aims
    keyboard.pressAction(); // lets the power swing
    EXPECT_EQ(refreshes, 0);
    EXPECT_EQ(view.hud()->message(), before);
    letQueueRun();
    EXPECT_EQ(refreshes, 1);
    EXPECT_EQ(view.hud()->message(), QString::fromStdString(match.message));
    EXPECT_TRUE(view.hud()->powerShown());
}

TEST_F(RefreshTest, ChangesWaitWhileAPictureIsBeingDrawn) {
    view.changes().hold();
    keyboard.pressAction(); // aims
    letQueueRun();
    keyboard.pressAction(); // lets the power swing
    letQueueRun();
    EXPECT_EQ(refreshes, 0);
    view.changes().release();
    EXPECT_EQ(refreshes, 1);
    EXPECT_TRUE(view.hud()->powerShown());
    keyboard.pressAction(); // throws
    letQueueRun();
    EXPECT_EQ(refreshes, 2);
    EXPECT_FALSE(view.hud()->powerShown());
}

TEST_F(RefreshTest, APictureThatBeginsAfterTheChangeHoldsItBackToo) {
    keyboard.pressAction();
    view.changes().hold();
    letQueueRun();
    EXPECT_EQ(refreshes, 0);
    view.changes().release();
    EXPECT_EQ(view.hud()->message(), QString::fromStdString(match.message));
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
    keyboard.pressAction();
    keyboard.pressRight();
    letQueueRun();
    EXPECT_EQ(refreshes, 1);
}

} // namespace vorbel
