// The beginning of a match, taken down and made again.
#include "engine/MatchStart.h"

#include "engine/GameLogic.h"

namespace vorbel {

MatchStart GameLogic::start() const {
    return {.redIsAI = redIsAI,
            .blueIsAI = blueIsAI,
            .level = aiDifficulty,
            .sportClass = playerClass,
            .playerCountry = playerCountry,
            .blueCountry = blueCountry,
            .tournamentRound = tournamentActive ? tournamentRound.get() : 0,
            .aim = state_.aim(),
            .powerDirection = state_.powerDirection,
            .computerIsScheduled = clock_.scheduled() != Clockwork::Step::none,
            .powerPace = state_.powerPace};
}

void GameLogic::beginMatch(const MatchStart& start) {
    redIsAI = start.redIsAI;
    blueIsAI = start.blueIsAI;
    aiDifficulty = start.level;
    playerClass = start.sportClass;
    playerCountry = start.playerCountry;
    blueCountry = start.blueCountry; // after the draw that came with its side
    state_.tournamentActive = start.tournamentRound > 0;
    state_.tournamentRound = start.tournamentRound;
    state_.aimAngle = start.aim.angle;
    state_.aimPitch = start.aim.pitch;
    state_.aimPower = start.aim.power;
    state_.powerDirection = start.powerDirection;
    state_.powerPace = start.powerPace;
    resetMatch();
    clock_.cancel();
    if (start.computerIsScheduled) {
        scheduleAITurn();
    }
    if (tournamentActive) {
        announceTournamentRound();
    }
}

} // namespace vorbel
