// When a throw is over, and the click of balls that strike each other.
#include "rules/BallModel.h"
#include "tests/scenario/Match.h"

namespace vorbel::test {

class SettlingTest : public MatchTest {
protected:
    SettlingTest() {
        humanAgainstHuman();
        emptyCourt();
        jackAt(0, -9);
        state.phase = GamePhase::playing;
        state.currentTurn = BallColor::red;
    }
    // A throw on its way whose tick count starts now.
    void throwUnderWay() {
        game.spawnBall();
        press(3);
        ASSERT_EQ(game.aimState, AimState::thrown);
        balls("red").back()->body = nullptr; // and with it the ball that was thrown is out of play
    }
    void strike(double speed) {
        const Node::Ptr red = redAt(0, -9.0 + 0.1 + 0.004);
        red->body->velocity = {0, 0, -speed};
        red->body->angularVelocity = {-speed / ball::radius, 0, 0};
        ticks(4);
    }
};

TEST_F(SettlingTest, ABallThatStillRollsIsStoppedDeadAfterThreeSeconds) {
    throwUnderWay();
    const Node::Ptr ball = redAt(0, -3);
    for (int i = 1; i < 150; ++i) {
        ball->body->velocity = {0, 0, -0.3};
        ball->body->angularVelocity = {-6, 0, 0};
        ticks(1);
        ASSERT_EQ(game.aimState, AimState::thrown) << "tick " << i;
    }
    ticks(1);
    EXPECT_EQ(game.aimState, AimState::idle);
    EXPECT_EQ(ball->body->velocity, Vec3(0));
    EXPECT_EQ(ball->body->angularVelocity, Vec3(0));
    const Vec3 stopped = ball->position();
    ticks(50);
    EXPECT_NEAR(glm::distance(ball->position(), stopped), 0, 1e-4);
}

TEST_F(SettlingTest, ASlowBallCountsAsSettledAndIsFrozen) {
    throwUnderWay();
    const Node::Ptr ball = redAt(0, -3);
    for (int i = 1; i < 30; ++i) {
        ball->body->velocity = {0, 0, -0.3};
        ticks(1);
    }
    ASSERT_EQ(game.aimState, AimState::thrown);
    ball->body->velocity = {0, 0, -0.2};
    ticks(1);
    EXPECT_EQ(game.aimState, AimState::idle);
    EXPECT_EQ(ball->body->velocity, Vec3(0));
}

TEST_F(SettlingTest, WhoHearsOfTheNextTurnFindsTheBallsAtRest) {
    throwUnderWay();
    const Node::Ptr ball = redAt(0, -3);
    Vec3 heardAt{1, 0, 0};
    const Subscription stage = game.aimState.onWillChange([&](AimState) { heardAt = ball->body->velocity; });
    for (int i = 1; i <= 150; ++i) {
        ball->body->velocity = {0, 0, -0.3};
        ticks(1);
    }
    EXPECT_EQ(heardAt, Vec3(0));
}

TEST_F(SettlingTest, ABallAtTheTopOfItsArcHasNotSettled) {
    throwUnderWay();
    const Node::Ptr ball = redAt(0, -3);
    for (int i = 1; i < 60; ++i) {
        ball->setPosition({0, 0.3, -3});
        ball->body->velocity = Vec3(0);
        ticks(1);
        ASSERT_EQ(game.aimState, AimState::thrown);
    }
}

TEST_F(SettlingTest, NoThrowIsOverBeforeTheTwentySixthTick) {
    throwUnderWay(); // nothing moves any more
    EXPECT_EQ(settled(), 26);
}

TEST_F(SettlingTest, ALoneJackSettlesWhenItIsLowAndSlow) {
    game.resetMatch();
    humanThrows(0, 20); // 1 m/s falls to 0.25 m/s after ln 4 / 0.4 = 3.47 s: the limit comes first
    EXPECT_EQ(settled(), 150);
    game.resetMatch();
    humanThrows(0, 10); // 0.5 m/s after ln 2 / 0.4 = 1.73 s
    const int ticksTaken = settled();
    EXPECT_GE(ticksTaken, 85);
    EXPECT_LE(ticksTaken, 89);
}

TEST_F(SettlingTest, AStrikeBelowTheAudibleSpeedIsSilent) {
    strike(0.1);
    EXPECT_EQ(audio.log["Tink"], "");
}

TEST_F(SettlingTest, AnAudibleStrikeClicksOnce) {
    strike(0.2);
    EXPECT_EQ(audio.log["Tink"], "stop play ");
}

TEST_F(SettlingTest, AClickIsHeardBetweenTheSideLinesWhereTheBallsMeet) {
    Node red("red");
    Node blue("blue");
    red.body = std::make_shared<PhysicsBody>(PhysicsBody{.velocity = {1, 0, 0}});
    struct Case {
        double red, blue; // m from the middle
        float pan;
    };
    for (const auto& [redX, blueX, pan] : {Case{0, 0, 0}, Case{-3, -3, -1}, Case{1.4, 1.6, 0.5F}}) {
        red.setPosition({redX, 0, -4});
        blue.setPosition({blueX, 0, -4});
        game.physicsWorldDidBegin(red, blue);
        queue.advance(0);
        EXPECT_NEAR(audio.pan["Tink"], pan, 1e-6);
    }
}

TEST_F(SettlingTest, WallAndFloorMakeNoClick) {
    const Node::Ptr ball = redAt(1, -12.2);
    ball->setPosition({1, 0.3, -12.2});
    ball->body->velocity = {0, 0, -3};
    ticks(50);
    EXPECT_EQ(audio.log["Tink"], "");
    EXPECT_GT(ball->position().z, -12.45);
}

TEST_F(SettlingTest, TwoQuickStrikesRestartTheClick) {
    Node red("red");
    Node blue("blue");
    red.body = std::make_shared<PhysicsBody>(PhysicsBody{.velocity = {1, 0, 0}});
    game.physicsWorldDidBegin(red, blue);
    game.physicsWorldDidBegin(red, blue);
    queue.advance(0);
    EXPECT_EQ(audio.log["Tink"], "stop play stop play ");
}

TEST_F(SettlingTest, ContactsWithUnnamedNodesAreIgnored) {
    Node red("red");
    Node scenery;
    red.body = std::make_shared<PhysicsBody>(PhysicsBody{.velocity = {1, 0, 0}});
    game.physicsWorldDidBegin(red, scenery);
    queue.advance(0);
    EXPECT_EQ(audio.log["Tink"], "");
}

} // namespace vorbel::test
