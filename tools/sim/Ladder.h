// Every level against every level.
#pragma once

#include "tools/sim/LadderSettings.h"
#include "tools/sim/MatchReport.h"

#include <array>
#include <functional>
#include <iosfwd>

namespace vorbel::sim {

// Matches that red won, by red's and blue's level.
using WinTable = std::array<std::array<int, allDifficulties.size()>, allDifficulties.size()>;

[[nodiscard]] std::int64_t matchesOf(const LadderSettings& settings);

// `onMatch` is called with each match in their order, whatever the number of threads, until it returns false.
[[nodiscard]] WinTable playLadder(
    const LadderSettings& settings, const Wanted& wanted = {},
    const std::function<bool(const MatchReport&)>& onMatch = [](const MatchReport&) { return true; });

// Share of the matches between two different levels that the first won, on either side; 0…1.
[[nodiscard]] double winRate(const WinTable& wins, int matchesPerCell, AIDifficulty level,
                             AIDifficulty against);

void writeLadder(std::ostream& out, const WinTable& wins, int matchesPerCell);

} // namespace vorbel::sim
