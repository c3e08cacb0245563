#include "career/Tournament.h"

#include <gtest/gtest.h>

#include <set>

namespace vorbel {

TEST(TournamentTest, EachRoundHasAStrongerComputer) {
    const AIDifficulty expected[] = {AIDifficulty::ultra, AIDifficulty::easy,  AIDifficulty::medium,
                                     AIDifficulty::hard,  AIDifficulty::ultra, AIDifficulty::ultra};
    for (int round = 0; round < 6; ++round) {
        EXPECT_EQ(tournamentDifficulty(round), expected[round]) << "round " << round;
    }
}

TEST(TournamentTest, AWonRoundLeadsToTheNextAndTheFourthToTheTitle) {
    for (const int round : {1, 2, 3}) {
        EXPECT_EQ(afterRound(round, true), TournamentStep::nextRound);
    }
    EXPECT_EQ(afterRound(4, true), TournamentStep::champion);
}

TEST(TournamentTest, ALostRoundIsTheLast) {
    for (const int round : {1, 2, 3, 4}) {
        EXPECT_EQ(afterRound(round, false), TournamentStep::eliminated);
    }
}

TEST(TournamentTest, EveryCountryButThePlayersIsAnOpponentOnce) {
    for (const Country player : allCountries) {
        std::set<Country> drawn;
        for (std::size_t place = 0; place < possibleOpponents; ++place) {
            drawn.insert(opponentAt(place, player));
        }
        EXPECT_EQ(drawn.size(), possibleOpponents);
        EXPECT_FALSE(drawn.contains(player));
    }
}

} // namespace vorbel
