#include "tools/sim/Ladder.h"

#include "tools/sim/Levels.h"
#include "tools/sim/MatchPlayer.h"

#include <algorithm>
#include <atomic>
#include <functional>
#include <iomanip>
#include <ostream>
#include <system_error>
#include <thread>
#include <vector>

namespace vorbel::sim {

namespace {

constexpr std::size_t levels = allDifficulties.size();
constexpr std::size_t cells = levels * levels;
constexpr unsigned mostJobs = 256;

constexpr std::size_t place(AIDifficulty level) {
    return static_cast<std::size_t>(level);
}

// On this thread, and on helpers as far as the system gives them.
void playTogether(const std::function<void()>& playMatches, unsigned jobs) {
    std::vector<std::jthread> helpers;
    try {
        for (unsigned i = 1; i < std::min(jobs, mostJobs); ++i) {
            helpers.emplace_back(playMatches);
        }
    } catch (const std::system_error&) { // no more threads
    }
    playMatches();
}

} // namespace

std::int64_t matchesOf(const LadderSettings& settings) {
    return std::int64_t{cells} * settings.matchesPerCell;
}

WinTable playLadder(const LadderSettings& settings, const std::function<void()>& onMatch) {
    const std::int64_t total = matchesOf(settings);
    std::array<std::atomic<int>, cells> wins{};
    std::atomic<std::int64_t> next = 0;
    const auto playMatches = [&] {
        for (std::int64_t i = next++; i < total; i = next++) {
            const auto cell = static_cast<std::size_t>(i / settings.matchesPerCell);
            MatchPlayer match({.seed = settings.firstSeed + static_cast<std::uint64_t>(i),
                               .red = allDifficulties[cell / levels],
                               .blue = allDifficulties[cell % levels]});
            match.play();
            wins[cell] += match.game().redScore > match.game().blueScore ? 1 : 0;
            onMatch();
        }
    };
    playTogether(playMatches, settings.jobs);
    WinTable table{};
    for (std::size_t cell = 0; cell < wins.size(); ++cell) {
        table[cell / levels][cell % levels] = wins[cell];
    }
    return table;
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
