// What the options change of the arena: of what is there, and of what comes later.
#include "tests/unit/app/ViewFixture.h"

#include "app/options/Options.h"
#include "scene/Ball.h"

namespace vorbel {

class SightOptionsTest : public ViewTest {
protected:
    Options& options = *view.options();

    // The newest ball of that name in the arena.
    [[nodiscard]] const Material& ball(BallColor kind) const {
        const Material* newest = nullptr;
        for (const Node::Ptr& node : match.scene.root->children()) {
            newest = node->name == nodeName(kind) ? &node->geometry->material : newest;
        }
        EXPECT_NE(newest, nullptr);
        static const Material none;
        return newest != nullptr ? *newest : none;
    }
};

TEST_F(SightOptionsTest, TheBallOnCourtIsOutlinedAtOnceAndPlainAgain) {
    appearAndHideMenu();
    const Material before = ball(BallColor::jack);
    options.set(Option::ballOutlines, 1);
    EXPECT_TRUE(ball(BallColor::jack).outlined);
    options.set(Option::ballOutlines, 0);
    EXPECT_EQ(ball(BallColor::jack), before);
}

TEST_F(SightOptionsTest, BallsThatComeLaterAreMarked) {
    options.set(Option::ballMarks, 1);
    throwJack();
    letQueueRun();
    const BallColor side = match.currentTurn;
    EXPECT_EQ(ball(side).mark, side == BallColor::red ? Mark::ring : Mark::cross);
    EXPECT_FALSE(ball(side).outlined);
    EXPECT_EQ(ball(BallColor::jack).mark, Mark::none);
}

TEST_F(SightOptionsTest, AChoiceOfTheLastLaunchIsThereFromTheFirstBallOn) {
    options.set(Option::ballOutlines, 1);
    ContentView next(platform.services(), defaults);
    next.appear();
    letQueueRun();
    const Node::Ptr jack = next.gameLogic().scene.root->findChild(nodeName(BallColor::jack));
    ASSERT_NE(jack, nullptr);
    EXPECT_TRUE(jack->geometry->material.outlined);
}

TEST_F(SightOptionsTest, WithoutAChoiceNoBallIsTouched) {
    throwJack();
    const Node::Ptr jack = match.scene.root->findChild(nodeName(BallColor::jack));
    jack->geometry->material.mark = Mark::cross; // as nobody else would
    options.set(Option::mute, 1);
    letQueueRun();
    match.message = "changed";
    letQueueRun();
    EXPECT_EQ(jack->geometry->material.mark, Mark::cross);
}

} // namespace vorbel
