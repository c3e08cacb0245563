// From the points of an end to the result of the match, and from match to match in a tournament.
#include "career/Tournament.h"
#include "engine/GameLogic.h"
#include "engine/Messages.h"

namespace vorbel {

void GameLogic::calculateScore() {
    const Position position = balls_.position();
    if (!position.jack) {
        return;
    }
    const Points points = pointsOfEnd(position);
    const EndResult result{currentEnd, points.red, points.blue};
    state_.redScore += points.red;
    state_.blueScore += points.blue;
    auto history = endHistory.get();
    history.push_back(result);
    state_.endHistory = std::move(history);
    if (points.red + points.blue > 0) {
        sounds_.playScore();
    }
    continueAfter(result);
}

void GameLogic::continueAfter(const EndResult& result) {
    switch (afterEnd(result.end, state_.score())) {
    case AfterEnd::nextEnd:
        message = messages::nextEndPrompt(language, result);
        break;
    case AfterEnd::extraEnd:
        startTieBreakEnd();
        break;
    case AfterEnd::matchOver:
        state_.phase = GamePhase::gameOver;
        message = messages::matchOver(language, redScore, blueScore);
        break;
    }
}

void GameLogic::startTieBreakEnd() {
    state_.currentEnd += 1;
    clearField();
    state_.redBallsLeft = ballsPerSide;
    state_.blueBallsLeft = ballsPerSide;
    state_.phase = GamePhase::playing; // without a jack throw
    state_.currentTurn = startingSide(currentEnd);
    state_.aimState = AimState::idle;
    balls_.place(BallColor::jack, crossPosition);
    spawnBall();
    message = messages::tieBreak(language, currentEnd, currentTurn);
    triggerAIIfNeeded();
}

void GameLogic::resetMatch() {
    state_.redScore = 0;
    state_.blueScore = 0;
    state_.endHistory = {};
    state_.currentEnd = 1;
    clearField();
    startNewEnd();
    beginnings_.tell();
}

std::string GameLogic::matchWinnerTitle() const {
    return messages::teamWinMatch(language, winner(state_.score()));
}

void GameLogic::startTournament(Country country) {
    playerCountry = country;
    state_.tournamentActive = true;
    state_.tournamentRound = 1;
    redIsAI = false;
    blueIsAI = true;
    aiDifficulty = tournamentDifficulty(tournamentRound);
    resetMatch();
    announceTournamentRound();
}

void GameLogic::advanceTournament() {
    const bool won = winner(state_.score()) == BallColor::red; // the player's side
    switch (afterRound(tournamentRound, won)) {
    case TournamentStep::nextRound:
        state_.tournamentRound += 1;
        aiDifficulty = tournamentDifficulty(tournamentRound);
        blueCountry = randomOpponent(playerCountry);
        resetMatch();
        announceTournamentRound();
        break;
    case TournamentStep::champion:
        state_.tournamentActive = false;
        resetMatch();
        message = messages::tournamentChampion(language);
        break;
    case TournamentStep::eliminated:
        state_.tournamentActive = false;
        resetMatch();
        message = messages::tournamentEliminated(language, tournamentRound);
        break;
    }
}

void GameLogic::announceTournamentRound() {
    message = messages::tournamentRound(language, tournamentRound, blueCountry);
}

Country GameLogic::randomOpponent(Country excluded) {
    return opponentAt(platform_.random.index(possibleOpponents), excluded);
}

} // namespace vorbel
