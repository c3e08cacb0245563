// The waiting ball and its launch.
#include "tests/ExpectNear.h"
#include "tests/scenario/Match.h"

#include <cmath>
#include <numbers>

namespace vorbel::test {

using std::numbers::pi;

class ThrowingTest : public MatchTest {
protected:
    const PhysicsBody& launch(double angle, double pitch, double power) {
        state.aimAngle = angle;
        state.aimPitch = pitch;
        state.aimPower = power;
        const Node::Ptr ball = game.activeBallNode();
        game.throwActiveBall();
        return *ball->body;
    }
};

TEST_F(ThrowingTest, BluesJackWaitsInBluesBox) {
    emptyCourt();
    state.currentTurn = BallColor::blue;
    game.spawnBall();
    ASSERT_TRUE(jack());
    EXPECT_EQ(jack()->position(), Vec3(1.0, 0.035, -0.5));
    EXPECT_EQ(jack()->geometry->material.diffuse, colors::white);
    EXPECT_EQ(game.scene.root->findChild("pointer")->position(), Vec3(1.0, 0.02, -0.5));
}

TEST_F(ThrowingTest, ColourBallsWaitInTheBoxOfTheirSide) {
    playingWith(BallColor::red);
    EXPECT_EQ(game.activeBallNode()->name, "red");
    EXPECT_EQ(game.activeBallNode()->position(), Vec3(-1.0, 0.035, -0.5));
    playingWith(BallColor::blue);
    EXPECT_EQ(game.activeBallNode()->name, "blue");
    EXPECT_EQ(game.activeBallNode()->position(), Vec3(1.0, 0.035, -0.5));
    EXPECT_EQ(game.activeBallNode()->body->type, PhysicsBody::Type::kinematic);
    EXPECT_EQ(game.activeBallNode()->body->mass, 0.2);
}

TEST_F(ThrowingTest, AWaitingBallIsHeldInPlace) {
    humanAgainstHuman();
    ticks(100);
    EXPECT_EQ(jack()->position(), Vec3(-1.0, 0.035, -0.5));
}

TEST_F(ThrowingTest, TheWeakestThrowRollsAtHalfAMetreASecond) {
    const PhysicsBody& body = launch(0, 0, 10);
    EXPECT_EQ(body.type, PhysicsBody::Type::dynamic);
    expectNear(body.velocity, {0, 0, -0.5});
    expectNear(body.angularVelocity, {-10, 0, 0});
}

TEST_F(ThrowingTest, AThrowToTheRightTurnsVelocityAndSpin) {
    const PhysicsBody& body = launch(pi / 4, 0, 100);
    expectNear(body.velocity, {3.5355339059327378, 0, -3.5355339059327378});
    expectNear(body.angularVelocity, {-70.71067811865476, 0, -70.71067811865476});
}

TEST_F(ThrowingTest, ARaisedThrowRollsOnlyWithItsHorizontalSpeed) {
    const PhysicsBody& body = launch(0, pi / 3, 100);
    expectNear(body.velocity, {0, 4.330127018922193, -2.5});
    expectNear(body.angularVelocity, {-50, 0, 0});
}

TEST_F(ThrowingTest, AnOvershootingPowerIsNotClamped) {
    expectNear(launch(0, 0, 101).velocity, {0, 0, -5.05});
}

TEST_F(ThrowingTest, ASecondLaunchDoesNothing) {
    launch(0, 0, 50);
    EXPECT_EQ(audio.log["Pop"], "stop play ");
    game.throwActiveBall();
    EXPECT_EQ(audio.log["Pop"], "stop play ");
    EXPECT_FALSE(game.activeBallNode());
}

TEST_F(ThrowingTest, TwoSpawnsLeaveTwoWaitingBallsAndTheSecondIsActive) {
    game.spawnBall();
    const auto jacks = balls("jack");
    ASSERT_EQ(jacks.size(), 2U);
    EXPECT_EQ(game.activeBallNode(), jacks[1]);
}

} // namespace vorbel::test
