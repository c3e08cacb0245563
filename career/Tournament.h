// The ladder of a tournament.
#pragma once

#include "engine/MatchTypes.h"

namespace vorbel {

inline constexpr int tournamentRounds = 4;

// The computer's level in a round: easy, medium, hard, and ultra from the fourth on.
[[nodiscard]] constexpr AIDifficulty tournamentDifficulty(int round) {
    switch (round) {
    case 1:
        return AIDifficulty::easy;
    case 2:
        return AIDifficulty::medium;
    case 3:
        return AIDifficulty::hard;
    default:
        return AIDifficulty::ultra;
    }
}

} // namespace vorbel
