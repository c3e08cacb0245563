#include "career/Tournament.h"

#include "engine/GameLogic.h"
#include "engine/Messages.h"

namespace vorbel {

Country GameLogic::randomOpponent(Country excluded) {
    // The countries without the excluded one, in order: those behind it move up by one place.
    const std::size_t drawn = platform_.random.index(countryCount - 1);
    const auto excludedIndex = static_cast<std::size_t>(excluded);
    return allCountries[drawn < excludedIndex ? drawn : drawn + 1];
}

void GameLogic::startTournament(Country country) {
    playerCountry = country;
    tournamentActive = true;
    tournamentRound = 1;
    redIsAI = false;
    blueIsAI = true;
    aiDifficulty = tournamentDifficulty(tournamentRound);
    resetMatch();
    announceTournamentRound();
}

void GameLogic::advanceTournament() {
    const bool won = redScore > blueScore;
    if (won && tournamentRound < tournamentRounds) {
        tournamentRound += 1;
        aiDifficulty = tournamentDifficulty(tournamentRound);
        blueCountry = randomOpponent(playerCountry);
        resetMatch();
        announceTournamentRound();
        return;
    }
    tournamentActive = false;
    resetMatch();
    message = won ? messages::tournamentChampion(language)
                  : messages::tournamentEliminated(language, tournamentRound);
}

void GameLogic::announceTournamentRound() {
    message = messages::tournamentRound(language, tournamentRound, blueCountry);
}

} // namespace vorbel
