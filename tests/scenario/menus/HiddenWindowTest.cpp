// What happens in the match while its window cannot be seen.
#include "tests/MatchSetup.h"
#include "tests/scenario/menus/MenuWindow.h"

#include <gtest/gtest.h>

namespace vorbel {

TEST(HiddenWindowTest, AMatchThatEndsInAHiddenWindowIsRecordedAtOnceAndItsResultIsThereLater) {
    MenuWindow game;
    game.open(MenuScreen::hidden);
    game.layOut();
    game.window().update();
    game.window().hide(); // a picture may have been asked for that is never shown
    MatchState& match = MatchSetup(game.view().gameLogic()).state();
    match.redScore = 3;
    match.phase = GamePhase::gameOver;
    EXPECT_EQ(game.view().career().gamesPlayed(), 1);
    game.window().show();
    game.settle();
    EXPECT_EQ(game.view().career().gamesPlayed(), 1);
    EXPECT_EQ(game.view().openMenu().menuScreen(), MenuScreen::matchResult);
    EXPECT_EQ(game.complaints(), QStringList());
}

} // namespace vorbel
