// Long play with random keys. VORBEL_SOAK_MINUTES sets how
// long each run is, in minutes on the clock of the match.
#include "tests/fuzz/RandomPlayer.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace vorbel::test {

namespace {

double soakMinutes() {
    constexpr double usual = 100;
    const char* wanted = std::getenv("VORBEL_SOAK_MINUTES");
    return wanted == nullptr ? usual : std::strtod(wanted, nullptr);
}

// Mostly the keys of a throw; now and then anything.
Action randomAction(SeededRandom& dice) {
    constexpr std::size_t keys = 5;
    constexpr std::size_t oneIn = 60;
    if (dice.index(oneIn) == 0) {
        return static_cast<Action>(dice.index(actionCount));
    }
    return dice.index(2) == 0 ? Action::space : static_cast<Action>(dice.index(keys));
}

} // namespace

class SoakTest : public testing::TestWithParam<std::uint64_t> {};

TEST_P(SoakTest, RandomKeysNeverBreakARuleOrGetStuck) {
    constexpr double minute = 60;
    SeededRandom dice(GetParam());
    RandomPlayer player(GetParam());
    const double end = soakMinutes() * minute;
    double silence = 0; // seconds since something last happened in the match
    for (double now = 0; now < end;) {
        player.perform(randomAction(dice));
        const double pause = dice.uniform(0.02, 1.5);
        player.wait(pause);
        now += pause;
        ASSERT_EQ(player.brokenInvariant(), "") << "after " << now << " s";
        silence = player.takeProgress() > 0 ? 0 : silence + pause;
        ASSERT_LT(silence, 5 * minute) << "stuck after " << now << " s";
    }
    EXPECT_EQ(player.phasesSeen().size(), 4U);
}

INSTANTIATE_TEST_SUITE_P(Seeds, SoakTest, testing::Values(1, 2)); // two, to keep two cores busy

} // namespace vorbel::test
