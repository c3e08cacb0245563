// The tick of a match: announced, stopped, paused.
#include "tests/scenario/Match.h"

namespace vorbel::test {

class ClockworkTest : public MatchTest {
protected:
    ClockworkTest() { humanAgainstHuman(); }
    // In class BC2, by 0.6 percent a tick.
    void powerSwingsFrom(double percent) {
        press(2);
        state.aimPower = percent;
    }
};

TEST_F(ClockworkTest, EveryTickIsAnnouncedWhenItsWorkIsDone) {
    powerSwingsFrom(50);
    std::vector<double> seen;
    Subscription watch = game.onTick([&] { seen.push_back(game.aimPower); });
    ticks(2);
    EXPECT_EQ(seen, (std::vector{50.6, 51.2}));
    watch.cancel();
    ticks(1);
    EXPECT_EQ(seen.size(), 2U);
}

TEST_F(ClockworkTest, AStoppedLoopSwingsNothing) {
    powerSwingsFrom(50);
    game.stopAimingLoop();
    ticks(10);
    EXPECT_EQ(game.aimPower, 50);
}

TEST_F(ClockworkTest, APausedMatchWaitsAndGoesOn) {
    powerSwingsFrom(50);
    game.pause();
    ticks(1); // what was announced before
    const double power = game.aimPower;
    ticks(50);
    EXPECT_EQ(game.aimPower, power);
    game.resume();
    ticks(2);
    EXPECT_GT(game.aimPower, power);
}

TEST_F(ClockworkTest, APausedComputerTakesItsTimeAnew) {
    game.redIsAI = true;
    queue.advance(0.7);
    game.pause();
    queue.advance(10);
    EXPECT_EQ(game.aimState, AimState::idle);
    game.resume();
    queue.advance(0.79);
    EXPECT_EQ(game.aimState, AimState::idle);
    queue.advance(0.02);
    EXPECT_EQ(game.aimState, AimState::aimingAngle);
}

TEST_F(ClockworkTest, AMatchThatWasStoppedIsNotStartedByItsResumption) {
    powerSwingsFrom(50);
    game.stopAimingLoop();
    game.pause();
    game.resume();
    ticks(1);
    const double power = game.aimPower;
    ticks(10);
    EXPECT_EQ(game.aimPower, power);
}

} // namespace vorbel::test
