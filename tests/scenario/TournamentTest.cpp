// Four rounds against the computer at rising levels.
#include "tests/scenario/Match.h"

namespace vorbel::test {

class TournamentTest : public MatchTest {
protected:
    TournamentTest() { humanAgainstHuman(); }
    void matchEnds(int red, int blue) {
        state.phase = GamePhase::gameOver;
        score(red, blue);
        press();
    }
    void expectRoundMessage(const std::string& round, const std::string& levelName) {
        const std::string opponent = game.t(key(game.blueCountry));
        EXPECT_EQ(message(), "Tournament round " + round + "/4! Opponent: " + opponent + " (" + levelName +
                                 "). [SPACE] to aim");
    }
};

TEST_F(TournamentTest, TheFirstRoundIsEasyAgainstAnotherCountry) {
    for (int i = 0; i < 100; ++i) {
        game.startTournament(Country::russia);
        EXPECT_NE(game.blueCountry, Country::russia);
    }
    EXPECT_TRUE(game.tournamentActive);
    EXPECT_EQ(game.tournamentRound, 1);
    EXPECT_EQ(game.aiDifficulty, AIDifficulty::easy);
    EXPECT_TRUE(game.blueIsAI);
    EXPECT_FALSE(game.redIsAI);
    expectRoundMessage("1", "Easy");
}

TEST_F(TournamentTest, EveryWonRoundIsFollowedByAHarderOne) {
    game.startTournament(Country::japan);
    matchEnds(4, 1);
    EXPECT_EQ(game.aiDifficulty, AIDifficulty::medium);
    expectRoundMessage("2", "Medium");
    matchEnds(4, 1);
    EXPECT_EQ(game.aiDifficulty, AIDifficulty::hard);
    matchEnds(4, 1);
    EXPECT_EQ(game.tournamentRound, 4);
    EXPECT_EQ(game.aiDifficulty, AIDifficulty::ultra);
    expectRoundMessage("4", "Ultra");
}

TEST_F(TournamentTest, TheFourthWinMakesAChampion) {
    game.startTournament(Country::japan);
    state.tournamentRound = 4;
    matchEnds(2, 1);
    EXPECT_FALSE(game.tournamentActive);
    EXPECT_EQ(game.redScore, 0);
    EXPECT_EQ(game.blueScore, 0);
    EXPECT_EQ(message(), "TOURNAMENT CHAMPION! You won all 4 rounds! [SPACE] for a new game");
    EXPECT_EQ(game.phase, GamePhase::throwingJack);
}

TEST_F(TournamentTest, ALostRoundEndsTheTournament) {
    game.startTournament(Country::japan);
    matchEnds(4, 1);
    matchEnds(1, 4);
    EXPECT_FALSE(game.tournamentActive);
    EXPECT_EQ(game.tournamentRound, 2);
    EXPECT_EQ(message(), "Tournament over: eliminated in round 2/4. [SPACE] for a new game");
    EXPECT_TRUE(game.blueIsAI);
    press();
    EXPECT_EQ(game.aimState, AimState::aimingAngle);
}

TEST_F(TournamentTest, ADrawnMatchCountsAsLost) {
    game.startTournament(Country::japan);
    matchEnds(2, 2);
    EXPECT_FALSE(game.tournamentActive);
}

TEST_F(TournamentTest, RussianMessagesAreComposed) {
    game.language = AppLanguage::ru;
    game.startTournament(Country::japan);
    EXPECT_EQ(message().find("Турнир, раунд 1/4! Соперник: "), 0U);
    EXPECT_NE(message().find("). [ПРОБЕЛ] для прицела"), std::string::npos);
    matchEnds(0, 1);
    EXPECT_EQ(message(), "Турнир окончен: вылет в раунде 1/4. [ПРОБЕЛ] для новой игры");
    state.tournamentActive = true;
    state.tournamentRound = 4;
    matchEnds(1, 0);
    EXPECT_EQ(message(), "ЧЕМПИОН ТУРНИРА! Вы выиграли все 4 раунда! [ПРОБЕЛ] для новой игры");
}

} // namespace vorbel::test
