// Rules that hold for every position and every sequence of actions.
#include "tests/MatchSetup.h"
#include "tests/fuzz/RandomPlayer.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <numbers>

namespace vorbel::test {

namespace {

rc::Gen<double> between(int low, int high) {
    constexpr double steps = 1000;
    return rc::gen::map(rc::gen::inRange(low * static_cast<int>(steps), high * static_cast<int>(steps)),
                        [](int thousandths) { return thousandths / steps; });
}

void placeBalls(MatchSetup& setup, BallColor color, const std::vector<std::pair<double, double>>& places) {
    for (const auto& [x, z] : places) {
        setup.place(color, x, z);
    }
}

struct AnyPosition {
    HeadlessPlatform platform{1};
    GameLogic game{platform.services()};
    MatchSetup setup{game};

    AnyPosition() {
        const auto ball = rc::gen::pair(between(-4, 4), between(-12, 0));
        setup.emptyCourt();
        game.language = AppLanguage::en;
        placeBalls(setup, BallColor::jack, {*ball});
        placeBalls(setup, BallColor::red,
                   *rc::gen::container<std::vector<std::pair<double, double>>>(6, ball));
        placeBalls(setup, BallColor::blue,
                   *rc::gen::container<std::vector<std::pair<double, double>>>(6, ball));
        setup.state().phase = GamePhase::playing;
    }
};

} // namespace

RC_GTEST_PROP(PropertyTest, AnySequenceOfActionsKeepsTheRules, ()) {
    RandomPlayer player(*rc::gen::arbitrary<std::uint64_t>());
    const auto actions = *rc::gen::container<std::vector<std::pair<std::size_t, double>>>(
        rc::gen::pair(rc::gen::inRange<std::size_t>(0, actionCount), between(0, 4)));
    for (const auto& [action, pause] : actions) {
        player.perform(static_cast<Action>(action));
        player.wait(pause);
        RC_ASSERT(player.brokenInvariant().empty());
    }
}

RC_GTEST_PROP(PropertyTest, AnEndIsWorthPointsForTheSideOfTheClosestBallOnly, ()) {
    AnyPosition position;
    position.setup.state().phase = GamePhase::endOver;
    position.game.calculateScore();
    const EndResult result = position.game.endHistory.get().back();
    RC_ASSERT(result.red >= 0 && result.red <= 6 && result.blue >= 0 && result.blue <= 6);
    RC_ASSERT(result.red + result.blue > 0);
    const bool equidistant = result.red > 0 && result.blue > 0;
    position.game.determineNextTurn();
    const bool redIsCloser = position.game.currentTurn == BallColor::blue;
    RC_ASSERT(equidistant || redIsCloser == (result.red > 0));
}

RC_GTEST_PROP(PropertyTest, TheComputerAlwaysAimsWithinItsLimits, ()) {
    AnyPosition position;
    GameLogic& game = position.game;
    game.aiDifficulty = allDifficulties[*rc::gen::inRange<std::size_t>(0, allDifficulties.size())];
    position.setup.state().currentTurn = *rc::gen::element(BallColor::red, BallColor::blue);
    game.redIsAI = true;
    game.blueIsAI = true;
    game.spawnBall();
    game.performAITurn();
    RC_ASSERT(game.aimState == AimState::aimingAngle);
    RC_ASSERT(std::abs(game.aimAngle) <= std::numbers::pi / 4);
    RC_ASSERT(game.aimPower >= 10 && game.aimPower <= 100);
    RC_ASSERT(game.aimPitch == 0);
}

} // namespace vorbel::test
