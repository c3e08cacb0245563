#include "tools/sim/Ladder.h"

#include "tools/sim/InOrder.h"
#include "tools/sim/Levels.h"

#include <iomanip>
#include <ostream>

namespace vorbel::sim {

namespace {

constexpr std::size_t levels = allDifficulties.size();
constexpr std::size_t cells = levels * levels;

constexpr std::size_t place(AIDifficulty level) {
    return static_cast<std::size_t>(level);
}

} // namespace

std::int64_t matchesOf(const LadderSettings& settings) {
    return std::int64_t{cells} * settings.matchesPerCell;
}

Pairing pairingOf(const LadderSettings& settings, std::int64_t match) {
    const auto cell = static_cast<std::size_t>(match / settings.matchesPerCell);
    return {.seed = settings.firstSeed + static_cast<std::uint64_t>(match),
            .red = allDifficulties[cell / levels],
            .blue = allDifficulties[cell % levels]};
}

WinTable playLadder(const LadderSettings& settings, const Wanted& wanted,
                    const std::function<bool(const MatchReport&)>& onMatch) {
    WinTable wins{};
    inOrder<MatchReport>(
        matchesOf(settings), settings.jobs,
        [&](std::int64_t match) { return reportOf(pairingOf(settings, match), wanted); },
        [&](const MatchReport& report) {
            wins[place(report.pairing.red)][place(report.pairing.blue)] += report.redHasWon ? 1 : 0;
            return onMatch(report);
        });
    return wins;
}

double winRate(const WinTable& wins, int matchesPerCell, AIDifficulty level, AIDifficulty against) {
    const int asRed = wins[place(level)][place(against)];
    const int asBlue = matchesPerCell - wins[place(against)][place(level)];
    return (static_cast<double>(asRed) + asBlue) / (2.0 * matchesPerCell);
}

void writeLadder(std::ostream& out, const WinTable& wins, int matchesPerCell) {
    constexpr int width = 9;
    constexpr double percent = 100;
    out << std::fixed << std::setprecision(1) << "Matches won by red, in percent of " << matchesPerCell
        << ":\n"
        << std::setw(width) << "red\\blue";
    for (const AIDifficulty blue : allDifficulties) {
        out << std::setw(width) << levelName(blue);
    }
    for (const AIDifficulty red : allDifficulties) {
        out << '\n' << std::setw(width) << levelName(red);
        for (const AIDifficulty blue : allDifficulties) {
            out << std::setw(width) << percent * wins[place(red)][place(blue)] / matchesPerCell;
        }
    }
    out << '\n';
    for (std::size_t i = allDifficulties.size() - 1; i > 0; --i) {
        out << levelName(allDifficulties[i]) << " beats " << levelName(allDifficulties[i - 1]) << " in "
            << percent * winRate(wins, matchesPerCell, allDifficulties[i], allDifficulties[i - 1]) << " % of "
            << std::int64_t{2} * matchesPerCell << '\n';
    }
}

} // namespace vorbel::sim
