#include "platform/random/RandomSource.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace vorbel {

namespace {

// Gives the same 64 bits every time.
class FixedRandom final : public RandomSource {
public:
    explicit FixedRandom(std::uint64_t bits) : bits_(bits) {}

private:
    std::uint64_t next() override { return bits_; }
    std::uint64_t bits_;
};

} // namespace

TEST(RandomSourceTest, BothBoundsCanBeDrawn) {
    constexpr std::uint64_t steps = std::uint64_t{1} << 53U;
    FixedRandom lowest(0);
    FixedRandom highest(steps); // k = 2⁵³ of 2⁵³
    EXPECT_EQ(lowest.uniform(-0.3, 0.7), -0.3);
    EXPECT_EQ(highest.uniform(-0.3, 0.7), 0.7);
}

TEST(RandomSourceTest, AnEmptyRangeGivesItsOnlyValue) {
    SeededRandom random(1);
    EXPECT_EQ(random.uniform(0, 0), 0);
}

TEST(RandomSourceTest, UniformNumbersSpreadEvenly) {
    SeededRandom random(2);
    constexpr int draws = 100'000;
    std::array<int, 10> counts{};
    for (int i = 0; i < draws; ++i) {
        const double drawn = random.uniform(0, 1);
        ASSERT_GE(drawn, 0);
        ASSERT_LE(drawn, 1);
        ++counts[std::min<std::size_t>(static_cast<std::size_t>(drawn * 10), 9)];
    }
    for (const int count : counts) {
        EXPECT_NEAR(count, draws / 10.0, 400); // more than four standard deviations
    }
}

TEST(RandomSourceTest, IndicesStayInRangeAndReachEveryPlace) {
    SeededRandom random(3);
    std::array<int, 7> counts{};
    for (int i = 0; i < 7000; ++i) {
        ++counts.at(random.index(7));
    }
    for (const int count : counts) {
        EXPECT_NEAR(count, 1000, 150);
    }
}

TEST(RandomSourceTest, TheSameSeedRepeats) {
    SeededRandom first(9);
    SeededRandom second(9);
    SeededRandom other(10);
    const double drawn = first.uniform(0, 1);
    EXPECT_EQ(drawn, second.uniform(0, 1));
    EXPECT_NE(drawn, other.uniform(0, 1));
}

TEST(RandomSourceTest, TheSystemsGeneratorDiffersFromRunToRun) {
    SystemRandom first;
    SystemRandom second;
    EXPECT_NE(first.uniform(0, 1), second.uniform(0, 1));
}

} // namespace vorbel
