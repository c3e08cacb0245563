#include "career/Progress.h"

#include <algorithm>
#include <array>
#include <limits>

namespace vorbel {

namespace {

struct Rank {
    int gamesPlayed; // matches from which on it is held
    TextKey key;
};

constexpr std::array ladder{
    Rank{0, "rank.novice"},      Rank{3, "rank.thirdYouth"}, Rank{6, "rank.secondYouth"},
    Rank{10, "rank.firstYouth"}, Rank{15, "rank.thirdRank"}, Rank{20, "rank.secondRank"},
    Rank{30, "rank.firstRank"},  Rank{45, "rank.cms"},       Rank{60, "rank.ms"},
};
static_assert(std::ranges::is_sorted(ladder, {}, &Rank::gamesPlayed));

// The first rank that is not yet held; the ladder's end at the top.
const Rank* nextRank(int gamesPlayed) {
    return std::ranges::upper_bound(ladder, gamesPlayed, {}, &Rank::gamesPlayed);
}

} // namespace

TextKey rankKey(int gamesPlayed) {
    const Rank* next = nextRank(gamesPlayed);
    return next == ladder.begin() ? ladder.front().key : (next - 1)->key;
}

std::optional<int> gamesToNextRank(int gamesPlayed) {
    const Rank* next = nextRank(gamesPlayed);
    if (next == ladder.end()) {
        return std::nullopt;
    }
    const int atLeast =
        next->gamesPlayed - std::numeric_limits<int>::max(); // whose distance can still be told
    return next->gamesPlayed - std::max(gamesPlayed, atLeast);
}

} // namespace vorbel
