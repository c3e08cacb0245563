// When the player only watches, and the screen saver has to wait.
#include "app/session/ScreenSaver.h"
#include "tests/unit/app/ViewFixture.h"

namespace vorbel {

class WatchingTest : public ViewTest {
protected:
    bool watching() { return ScreenSaver::isWatching(match, openMenu); }
};

TEST_F(WatchingTest, WhoIsToThrowDoesNotOnlyWatch) {
    hideMenu();
    for (const AimState state : {AimState::idle, AimState::aimingAngle, AimState::aimingPower}) {
        setup.state().aimState = state;
        EXPECT_FALSE(watching());
    }
}

TEST_F(WatchingTest, ABallThatRollsIsWatched) {
    hideMenu();
    setup.state().aimState = AimState::thrown;
    EXPECT_TRUE(watching());
}

TEST_F(WatchingTest, TheComputersTurnIsWatchedAndThePlayersIsNot) {
    hideMenu();
    match.blueIsAI = true;
    EXPECT_FALSE(watching()) << "red is to throw";
    setup.state().currentTurn = BallColor::blue;
    EXPECT_TRUE(watching());
}

TEST_F(WatchingTest, InTheMenuAndBetweenTheEndsNobodyWatches) {
    setup.state().aimState = AimState::thrown;
    EXPECT_FALSE(watching()) << "the menu is open";
    hideMenu();
    for (const GamePhase phase : {GamePhase::endOver, GamePhase::gameOver}) {
        setup.state().phase = phase;
        EXPECT_FALSE(watching());
    }
}

} // namespace vorbel
