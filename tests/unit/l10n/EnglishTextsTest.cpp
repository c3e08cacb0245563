// Every English text of the game itself, letter by letter: what the texts say is settled, and a change of one
// is made in two places, knowingly.
#include "l10n/L10n.h"
#include "l10n/Table.h"

#include <gtest/gtest.h>

namespace vorbel::L10n {
namespace {

// In the order of Keys.h.
constexpr std::array<Text, 113> settledTexts{{
    {"team.red", "Red"},
    {"team.blue", "Blue"},
    {"team.red.caps", "RED"},
    {"team.blue.caps", "BLUE"},
    {"label.score", "Score:"},
    {"label.ballsLeft", "Balls:"},
    {"label.end", "End"},
    {"menu.matchResult", "Match Result"},
    {"menu.nextRound", "Next Round"},
    {"menu.mainMenu", "Main Menu"},
    {"label.end.format", "End %@ of 4"},
    {"label.playingAs.format", "Playing for: %@ · Class %@"},
    {"label.rampHint", "Ramp: throw stays on the ground, [↑][↓] disabled"},
    {"label.aiDifficulty", "AI Difficulty"},
    {"label.throwPower", "Throw power"},
    {"label.aiToggle", "AI"},
    {"difficulty.easy", "Easy"},
    {"difficulty.medium", "Medium"},
    {"difficulty.hard", "Hard"},
    {"difficulty.ultra", "Ultra"},
    {"menu.language", "Language"},
    {"menu.gameMenu", "Game"},
    {"menu.toggleFullScreen", "Toggle Full Screen"},
    {"menu.rank.format", "Rank: %@"},
    {"menu.gamesNext.format", "Matches played: %@ · to next rank: %@"},
    {"menu.gamesMax.format", "Matches played: %@ · max rank reached"},
    {"menu.startGame", "Start Game"},
    {"menu.tournament", "Tournament"},
    {"menu.rules", "Rules"},
    {"menu.about", "About"},
    {"menu.exit", "Quit"},
    {"menu.chooseCountry", "Which country are you playing for?"},
    {"menu.play", "Play"},
    {"menu.sportClass", "Sport Class"},
    {"menu.back", "Back"},
    {"menu.isRealAthlete", "I'm a real-life athlete"},
    {"menu.diary", "Athlete's Diary"},
    {"diary.totalXP.format", "Experience (XP): %@"},
    {"diary.empty", "No entries yet. Play a match!"},
    {"diary.win", "Win"},
    {"diary.loss", "Loss"},
    {"diary.draw", "Draw"},
    {"diary.entry.format", "%@ (+%@ XP)"},
    {"bc.desc.bc1", "Cerebral palsy, throws with hand or foot. An assistant is allowed — only to stabilize "
                    "the chair and hand over the ball."},
    {"bc.desc.bc2", "Cerebral palsy, higher functional level than BC1. No assistant allowed."},
    {"bc.desc.bc3", "Most severe impairments (any diagnosis), throws using a ramp (chute) with an "
                    "assistant's support on court."},
    {"bc.desc.bc4", "Severe motor impairments not caused by cerebral palsy (e.g. muscular dystrophy). No "
                    "ramp and no assistant."},
    {"rank.novice", "Novice"},
    {"rank.thirdYouth", "3rd Junior Class"},
    {"rank.secondYouth", "2nd Junior Class"},
    {"rank.firstYouth", "1st Junior Class"},
    {"rank.thirdRank", "3rd Class"},
    {"rank.secondRank", "2nd Class"},
    {"rank.firstRank", "1st Class"},
    {"rank.cms", "Candidate Master of Sport"},
    {"rank.ms", "Master of Sport"},
    {"msg.initial", "Press [SPACE] to start aiming"},
    {"msg.aimingHint", "Arrows [←][→] and [↑][↓] to aim. [SPACE] - ok."},
    {"msg.lockPower", "[SPACE] Lock throw power"},
    {"msg.ballInPlay", "Ball in play..."},
    {"msg.turn.format", "%@'s turn. [SPACE] to aim"},
    {"msg.endWon.format", "%@ won the end! Points: %@."},
    {"msg.endDraw", "Draw in the end!"},
    {"msg.matchDraw", "Draw in the match!"},
    {"msg.teamWinMatch.format", "%@ WIN THE MATCH!"},
    {"msg.matchOver.format", "%@ Score %@:%@. [SPACE] for a new game"},
    {"msg.nextEndPrompt.format", "%@ [SPACE] for the next end"},
    {"msg.newEndStart.format", "End %@ started. %@'s turn. [SPACE] to aim"},
    {"msg.jackOut.format", "The jack went out! Turn passes to %@. [SPACE] to aim"},
    {"msg.tieBreak.format", "Match tied! Extra end %@: jack placed at center. %@'s turn. [SPACE] to aim"},
    {"msg.aiAiming.format", "AI (%@) is aiming..."},
    {"msg.tournamentRound.format", "Tournament round %@/%@! Opponent: %@ (%@). [SPACE] to aim"},
    {"msg.tournamentEliminated.format", "Tournament over: eliminated in round %@/%@. [SPACE] for a new game"},
    {"msg.tournamentChampion.format", "TOURNAMENT CHAMPION! You won all %@ rounds! [SPACE] for a new game"},
    {"country.france", "France"},
    {"country.germany", "Germany"},
    {"country.thailand", "Thailand"},
    {"country.brazil", "Brazil"},
    {"country.japan", "Japan"},
    {"country.southKorea", "South Korea"},
    {"country.greatBritain", "Great Britain"},
    {"country.portugal", "Portugal"},
    {"country.china", "China"},
    {"country.belgium", "Belgium"},
    {"country.croatia", "Croatia"},
    {"country.czechRepublic", "Czech Republic"},
    {"country.greece", "Greece"},
    {"country.hungary", "Hungary"},
    {"country.netherlands", "Netherlands"},
    {"country.poland", "Poland"},
    {"country.slovakia", "Slovakia"},
    {"country.spain", "Spain"},
    {"country.ukraine", "Ukraine"},
    {"country.hongKong", "Hong Kong"},
    {"country.indonesia", "Indonesia"},
    {"country.malaysia", "Malaysia"},
    {"country.singapore", "Singapore"},
    {"country.israel", "Israel"},
    {"country.argentina", "Argentina"},
    {"country.bermuda", "Bermuda"},
    {"country.canada", "Canada"},
    {"country.colombia", "Colombia"},
    {"country.ecuador", "Ecuador"},
    {"country.elSalvador", "El Salvador"},
    {"country.mexico", "Mexico"},
    {"country.peru", "Peru"},
    {"country.egypt", "Egypt"},
    {"country.southAfrica", "South Africa"},
    {"country.tunisia", "Tunisia"},
    {"country.australia", "Australia"},
    {"country.russia", "Russia"},
    {"rules.text", "The goal is to throw colored balls as close as possible to the white ball (the jack).\n"
                   "\n"
                   "1. The right to start the end is decided: a team throws the white jack, then their first "
                   "colored ball.\n"
                   "2. The team whose ball is currently NOT closest to the jack throws next.\n"
                   "3. Each team has 6 balls per end.\n"
                   "4. Once all balls are thrown, the end is over: the team with balls closer to the jack "
                   "than the opponent's best ball scores one point per such ball.\n"
                   "5. A match has 4 ends. If the score is tied after the match, an extra end is played, and "
                   "the jack is placed at the center by the referee instead of being thrown.\n"
                   "\n"
                   "Controls:\n"
                   "[SPACE] — start aiming / lock the angle / throw.\n"
                   "[←] [→] [↑] [↓] — direction and height of the throw."},
    {"about.text",
     "VORBEL\n"
     "\n"
     "Made by the VORBEL team.\n"
     "A 3D boccia game made with Qt, OpenGL, Bullet and SDL.\n"
     "\n"
     "Also from the makers of VORBEL:\n"
     "· vorbel-sim — the match simulator: computer opponents play whole matches, without graphics\n"
     "· the VORBEL source code — written to be read, for players who like to see how it works"},
}};

TEST(EnglishTextsTest, AreTheSettledOnesLetterByLetter) {
    for (std::size_t i = 0; i < keys.size(); ++i) {
        EXPECT_EQ(keys[i], settledTexts[i].key);
        EXPECT_EQ(tNamed(settledTexts[i].key, AppLanguage::en), settledTexts[i].text) << settledTexts[i].key;
    }
}

} // namespace
} // namespace vorbel::L10n
