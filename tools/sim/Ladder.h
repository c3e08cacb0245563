// Every level against every level.
#pragma once

#include "rules/MatchTypes.h"

#include <array>
#include <cstdint>
#include <iosfwd>

namespace vorbel::sim {

// Matches that red won, by red's and blue's level.
using WinTable = std::array<std::array<int, allDifficulties.size()>, allDifficulties.size()>;

struct LadderSettings {
    int matchesPerPair = 200; // half of a pair's matches with either level as red
    std::uint64_t firstSeed = 1;
    unsigned jobs = 1; // threads
};

[[nodiscard]] WinTable playLadder(const LadderSettings& settings);

// Share of the matches between two different levels that the first won, on either side; 0…1.
[[nodiscard]] double winRate(const WinTable& wins, int matchesPerCell, AIDifficulty level,
                             AIDifficulty against);

void writeLadder(std::ostream& out, const WinTable& wins, int matchesPerCell);

} // namespace vorbel::sim
