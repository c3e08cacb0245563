// Every level against every level.
#pragma once

#include "rules/MatchTypes.h"

#include <array>
#include <cstdint>
#include <functional>
#include <iosfwd>

namespace vorbel::sim {

// Matches that red won, by red's and blue's level.
using WinTable = std::array<std::array<int, allDifficulties.size()>, allDifficulties.size()>;

struct LadderSettings {
    // At most 2³⁰. Either level of a pair plays red once, so a pair plays twice as many.
    int matchesPerCell = 100;
    std::uint64_t firstSeed = 1;
    unsigned jobs = 1; // threads; more than 256, or than the system gives, are as many as there are
};

[[nodiscard]] std::int64_t matchesOf(const LadderSettings& settings);

// `onMatch` is called after each match, from any of the threads.
[[nodiscard]] WinTable playLadder(
    const LadderSettings& settings, const std::function<void()>& onMatch = [] {});

// Share of the matches between two different levels that the first won, on either side; 0…1.
[[nodiscard]] double winRate(const WinTable& wins, int matchesPerCell, AIDifficulty level,
                             AIDifficulty against);

void writeLadder(std::ostream& out, const WinTable& wins, int matchesPerCell);

} // namespace vorbel::sim
