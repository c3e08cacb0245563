// What stands in the arena, and that balls roll on it.
#include "rules/BallModel.h"
#include "tests/ExpectNear.h"
#include "tests/scenario/Match.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vorbel::test {

class ArenaTest : public MatchTest {
protected:
    ArenaTest() { humanAgainstHuman(); }
    Scene empty;
    [[nodiscard]] std::size_t nodeCount() const { return empty.root->children().size(); }
    [[nodiscard]] const Node& node(std::size_t index) const { return *empty.root->children()[index]; }
};

TEST_F(ArenaTest, TheSceneHasOneHiddenPointerAlongTheThrow) {
    const auto& children = game.scene.root->children();
    EXPECT_EQ(std::ranges::count_if(children, [](const auto& n) { return n->name == "pointer"; }), 1);
    const Node::Ptr pointer = game.scene.root->findChild("pointer");
    EXPECT_EQ(pointer->opacity, 0);
    ASSERT_EQ(pointer->children().size(), 1U);
    const Node& bar = *pointer->children()[0];
    expectNear(bar.position(), {0, 0, -1});
    EXPECT_EQ(std::get<Box>(bar.geometry->shape), (Box{0.02, 0.02, 2}));
    EXPECT_EQ(bar.geometry->material.emission, colors::systemRed);
}

TEST_F(ArenaTest, NodesFollowInTheirOrder) {
    SeededRandom dice(1);
    const Scene scene = GameLogic::create3DScene(dice);
    // 11 of the court, 370 of the stands, 37 flags, 2 side lines, the throwing area's 12, the referee.
    EXPECT_EQ(scene.root->children().size(), 11U + 370 + 37 + 2 + 12 + 1);
    EXPECT_TRUE(std::holds_alternative<Floor>(scene.root->children()[0]->geometry->shape));
    EXPECT_EQ(scene.root->children()[6]->name, "pointer");
    EXPECT_TRUE(scene.root->children()[8]->light);
    EXPECT_TRUE(scene.root->children()[10]->camera);
    expectNear(scene.root->children().back()->position(), {-3.4, 0, -6.25});
    EXPECT_EQ(scene.background, (Color{0.05F, 0.05F, 0.08F}));
}

TEST_F(ArenaTest, ABallAtRestStaysAtItsHeight) {
    emptyCourt();
    const Node::Ptr ball = redAt(1, -5);
    ticks(200);
    expectNear(ball->position(), {1, 0.035, -5});
}

TEST_F(ArenaTest, ABallStopsAtTheInvisibleWall) {
    emptyCourt();
    const Node::Ptr ball = redAt(0, -12);
    ball->body->velocity = {0, 0, -2};
    ball->body->angularVelocity = {-40, 0, 0};
    ticks(100);
    EXPECT_NEAR(ball->position().z, -12.45 + ball::radius, 0.02);
}

TEST_F(ArenaTest, ABallRollsOnBesideTheCourt) {
    emptyCourt();
    const Node::Ptr ball = redAt(2.9, -5);
    ball->body->velocity = {2, 0, 0};
    ball->body->angularVelocity = {0, 0, -40};
    ticks(100);
    EXPECT_GT(ball->position().x, 4);
    EXPECT_NEAR(ball->position().y, 0.035, 1e-3);
}

TEST_F(ArenaTest, ALineWithoutLengthIsNotDrawn) {
    GameLogic::addCourtLine(empty, {1, 0, 2}, {1, 3, 2});
    EXPECT_EQ(nodeCount(), 0U);
}

TEST_F(ArenaTest, ALineRunsBetweenItsPoints) {
    GameLogic::addCourtLine(empty, {0, 0, -1.5}, {-3, 0, -3.5});
    ASSERT_EQ(nodeCount(), 1U);
    expectNear(node(0).position(), {-1.5, 0, -2.5});
    EXPECT_NEAR(std::get<Box>(node(0).geometry->shape).width, std::hypot(3, 2), 1e-12);
    expectNear(node(0).orientation() * Vec3(1, 0, 0), glm::normalize(Vec3(-3, 0, -2)));
}

TEST_F(ArenaTest, RestingJacksAreIndependentAndNotInTheScene) {
    const std::size_t before = game.scene.root->children().size();
    const Node::Ptr first = game.makeRestingJack(GameLogic::crossPosition);
    const Node::Ptr second = game.makeRestingJack(GameLogic::crossPosition);
    EXPECT_NE(first, second);
    EXPECT_NE(first->body, second->body);
    EXPECT_EQ(first->name, "jack");
    EXPECT_EQ(first->body->type, PhysicsBody::Type::dynamic);
    EXPECT_EQ(game.scene.root->children().size(), before);
}

TEST_F(ArenaTest, TheThrowingAreaScalesWithTheCourt) {
    GameLogic::addThrowingBoxes(empty, 9);
    ASSERT_EQ(nodeCount(), 12U);
    expectNear(node(1).position(), {2.5 * 1.5 - 4.5, 0.005, 1});
    expectNear(node(2).position(), {3.5 * 1.5 - 4.5, 0.005, 1});
    EXPECT_EQ(node(1).geometry->material.diffuse.alpha, 0.25F);
    for (std::size_t i = 0; i < 7; ++i) {
        expectNear(node(5 + i).position(), {1.5 * static_cast<double>(i) - 4.5, 0, 1});
    }
    EXPECT_EQ(std::get<Box>(node(0).geometry->shape), (Box{9, 0.1, 2}));
}

TEST_F(ArenaTest, TheStandsHaveTenStepsAndThreeHundredAndSixtySpectators) {
    for (const double length : {12.5, 4.0}) {
        Scene stands;
        GameLogic::addStands(stands, 6, length, random);
        EXPECT_EQ(stands.root->children().size(), 370U);
    }
}

TEST_F(ArenaTest, SpectatorsSpreadAlongTheCourtAndFaceIt) {
    GameLogic::addStands(empty, 6, 12.5, random);
    const auto& nodes = empty.root->children();
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        const std::size_t bank = i / 185;
        const std::size_t row = i % 185 / 37;
        const std::size_t place = i % 37;
        const double side = bank == 0 ? 1 : -1;
        const double rowX = side * (4.3 + 0.5 * static_cast<double>(row));
        const Vec3 position = nodes[i]->position();
        if (place == 0) {
            expectNear(position, {rowX, 0.175 + 0.35 * static_cast<double>(row), -6.25});
            continue;
        }
        const auto& plane = std::get<Plane>(nodes[i]->geometry->shape);
        EXPECT_GE(plane.height, 0.32);
        EXPECT_LE(plane.height, 0.44);
        EXPECT_NEAR(position.y, 0.35 * static_cast<double>(row + 1) + plane.height / 2, 1e-9);
        EXPECT_NEAR(position.x, rowX, 0.05 + 1e-9);
        EXPECT_NEAR(position.z, -12.326388888 + 12.5 / 36 * static_cast<double>(place - 1), 0.12 + 1e-6);
        expectNear(nodes[i]->orientation() * Vec3(0, 0, 1), {-side, 0, 0});
        EXPECT_TRUE(nodes[i]->geometry->material.unlit);
        EXPECT_TRUE(nodes[i]->geometry->material.doubleSided);
    }
}

TEST_F(ArenaTest, TheTwoBanksAreDressedIndependently) {
    GameLogic::addStands(empty, 6, 12.5, random);
    int alike = 0;
    for (std::size_t i = 1; i < 37; ++i) {
        alike += node(i).geometry == node(i + 185).geometry ? 1 : 0;
    }
    EXPECT_LT(alike, 36);
}

TEST_F(ArenaTest, TheWallHasThirtySevenFlagsAndRussiaOnTop) {
    GameLogic::addFlags(empty);
    ASSERT_EQ(nodeCount(), countryCount);
    expectNear(node(0).position(), {-3.8, 1.2, -9.9});
    expectNear(node(13).position(), {0, 1.62, -9.9});
    expectNear(node(36).position(), {0, 2.88, -9.9});
}

TEST_F(ArenaTest, OneStripeFillsTheWholeFlag) {
    const Node::Ptr flag = GameLogic::makeStripedFlag(std::vector{colors::white}, true, 0.46, 0.32);
    ASSERT_EQ(flag->children().size(), 1U);
    expectNear(flag->children()[0]->position(), {0, 0, 0});
    EXPECT_EQ(std::get<Plane>(flag->children()[0]->geometry->shape), (Plane{0.46, 0.32}));
}

TEST_F(ArenaTest, StripesStartOnTopOrOnTheLeft) {
    const std::vector stripes{colors::black, colors::white};
    const Node::Ptr across = GameLogic::makeStripedFlag(stripes, true, 4, 2);
    expectNear(across->children()[0]->position(), {0, 0.5, 0});
    const Node::Ptr upright = GameLogic::makeStripedFlag(stripes, false, 4, 2);
    expectNear(upright->children()[0]->position(), {-1, 0, 0});
}

TEST_F(ArenaTest, EveryFlagDesignHasItsLayers) {
    EXPECT_EQ(GameLogic::makeCircleFlag(colors::white, colors::black, 2, 1)->children().size(), 2U);
    EXPECT_EQ(GameLogic::makeCrossFlag(colors::white, colors::black, colors::white, 2, 1)->children().size(),
              5U);
    EXPECT_EQ(GameLogic::makeCantonFlag(colors::white, 2, 1)->children().size(), 2U);
    EXPECT_EQ(GameLogic::makeKoreaFlag(2, 1)->children().size(), 3U);
    const Node::Ptr star = GameLogic::makeStarFlag(2, 1);
    ASSERT_EQ(star->children().size(), 5U);
    expectNear(star->children()[1]->position(), {0, 0.402, 0.001});
}

TEST_F(ArenaTest, TheRefereeStandsBesideTheLeftSideLine) {
    const Node::Ptr referee = GameLogic::makeReferee(6, 12.5);
    expectNear(referee->position(), {-3.4, 0, -6.25});
    EXPECT_EQ(referee->children().size(), 7U);
    constexpr double widestPart = 0.2; // m: half a hand's or the torso's extent around its centre
    for (const Node::Ptr& part : referee->children()) {
        const Vec3 centre = referee->position() + referee->orientation() * part->position();
        EXPECT_LT(centre.x + widestPart, -3.0);
    }
    const Node& face = *referee->children().back();
    EXPECT_LT((referee->orientation() * face.position()).x, 0);
}

} // namespace vorbel::test
