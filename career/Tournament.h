// The ladder of a tournament: four rounds, each against another country and a stronger computer.
#pragma once

#include "l10n/Country.h"
#include "rules/MatchTypes.h"

#include <cstddef>
#include <cstdint>

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

// What the match of a round, won or not, brings.
enum class TournamentStep : std::uint8_t { nextRound, champion, eliminated };
[[nodiscard]] constexpr TournamentStep afterRound(int round, bool won) {
    if (!won) {
        return TournamentStep::eliminated;
    }
    return round < tournamentRounds ? TournamentStep::nextRound : TournamentStep::champion;
}

inline constexpr std::size_t possibleOpponents = countryCount - 1;

// The countries without the player's, in their order: the one at that place, below possibleOpponents.
[[nodiscard]] Country opponentAt(std::size_t place, Country player);

} // namespace vorbel
