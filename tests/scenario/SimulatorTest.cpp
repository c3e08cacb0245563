// Whole matches between computer sides.
#include "tools/sim/Ladder.h"
#include "tools/sim/MatchPlayer.h"
#include "tools/sim/Options.h"
#include "tools/sim/Signature.h"
#include "tools/sim/Trace.h"

#include <gtest/gtest.h>

#include <numeric>
#include <sstream>

namespace vorbel::sim {

namespace {

std::string trace(std::uint64_t seed) {
    std::ostringstream out;
    MatchPlayer match({.seed = seed, .red = AIDifficulty::hard, .blue = AIDifficulty::medium});
    match.setThrowObserver(
        [&out](const Throw& played, const GameLogic& game) { writeThrow(out, played, game); });
    EXPECT_TRUE(match.play());
    return out.str();
}

Options parsed(std::vector<const char*> arguments) {
    return std::get<Options>(parseOptions(arguments));
}

std::string problem(std::vector<const char*> arguments) {
    return std::get<std::string>(parseOptions(arguments));
}

} // namespace

TEST(SimulatorTest, TheSameSeedGivesTheSameMatch) {
    EXPECT_EQ(trace(5), trace(5));
}

TEST(SimulatorTest, SeedsGiveDifferentMatches) {
    EXPECT_NE(trace(5), trace(6));
}

TEST(SimulatorTest, ATraceHasALineForEveryThrow) {
    const std::string lines = trace(5);
    const auto throws = std::ranges::count(lines, '\n');
    EXPECT_GE(throws, 4 * 13); // a jack and twelve balls in each of four ends
    EXPECT_NE(lines.find("red throws jack"), std::string::npos);
}

TEST(SimulatorTest, TheHistoryAddsUpToTheScore) {
    for (std::uint64_t seed = 1; seed <= 5; ++seed) {
        MatchPlayer match({.seed = seed});
        ASSERT_TRUE(match.play());
        const auto& history = match.game().endHistory.get();
        EXPECT_GE(history.size(), 4U);
        const auto sum = [&history](int EndResult::*side) {
            return std::accumulate(history.begin(), history.end(), 0,
                                   [side](int total, const EndResult& end) { return total + end.*side; });
        };
        EXPECT_EQ(sum(&EndResult::red), match.game().redScore);
        EXPECT_EQ(sum(&EndResult::blue), match.game().blueScore);
        EXPECT_NE(match.game().redScore, match.game().blueScore);
    }
}

// A new number here means that matches go differently than before: say so, and why, when changing it.
TEST(SimulatorTest, TheSignatureOfTheBehaviourIsKnown) {
    EXPECT_EQ(matchSignature(), 0x6bdfeb174eb60fe6U);
}

TEST(SimulatorTest, OptionsAreRead) {
    const Options options = parsed(
        {"--matches", "7", "--red", "ultra", "--blue", "easy", "--seed", "42", "--trace", "--jobs", "2"});
    EXPECT_EQ(options.matches, 7);
    EXPECT_EQ(options.red, AIDifficulty::ultra);
    EXPECT_EQ(options.blue, AIDifficulty::easy);
    EXPECT_EQ(options.seed, 42U);
    EXPECT_EQ(options.jobs, 2U);
    EXPECT_TRUE(options.trace);
}

TEST(SimulatorTest, WrongOptionsAreNamed) {
    EXPECT_EQ(problem({"--fast"}), "unknown option --fast; see vorbel-sim --help");
    EXPECT_EQ(problem({"--seed"}), "--seed needs a value; see vorbel-sim --help");
    EXPECT_EQ(problem({"--red", "huge"}), "huge is no value for --red; see vorbel-sim --help");
    EXPECT_EQ(problem({"--matches", "0"}), "0 is no value for --matches; see vorbel-sim --help");
    EXPECT_EQ(problem({"--seed", "-1"}), "-1 is no value for --seed; see vorbel-sim --help");
}

} // namespace vorbel::sim
