// A content view without a window, on a clock that moves only when told to.
#pragma once

#include "app/window/ContentView.h"
#include "platform/HeadlessPlatform.h"
#include "platform/store/MemoryDefaults.h"

#include <gtest/gtest.h>

namespace vorbel {

class ViewTest : public testing::Test {
protected:
    HeadlessPlatform platform{1};
    MemoryDefaults defaults;
    ContentView view{platform.services(), defaults};
    GameLogic& match = view.gameLogic();
    PlayerSettings& settings = *view.settings();
    OpenMenu& openMenu = view.openMenu();
    Keyboard& keyboard = *view.keyboard();
    Career& career = view.career();

    // Runs what was posted to the main queue.
    void letQueueRun() { platform.queue.advance(0); }

    void speak(AppLanguage language) {
        settings.setSelectedLanguage(language);
        letQueueRun();
        letQueueRun(); // the language first, then what follows from it
    }
    void hideMenu() { openMenu.setMenuScreen(MenuScreen::hidden); }

    // Ends the match with these scores; nothing that waits in the main queue has run yet.
    void endMatch(int redScore, int blueScore) {
        match.redScore = redScore;
        match.blueScore = blueScore;
        match.phase = GamePhase::gameOver;
    }
    void finishMatch(int redScore, int blueScore) {
        endMatch(redScore, blueScore);
        letQueueRun();
    }

    // The computer plays both sides, from the first jack to the result.
    void playMatch() {
        view.appear();
        hideMenu();
        settings.setRedAIOn(true);
        settings.setBlueAIOn(true);
        for (int second = 0; second < 3600 && match.phase != GamePhase::gameOver; ++second) {
            platform.queue.advance(1);
            if (match.phase == GamePhase::endOver) {
                keyboard.pressAction();
            }
        }
        ASSERT_EQ(match.phase, GamePhase::gameOver);
    }

    [[nodiscard]] Quat pointerOrientation() const {
        return match.scene.root->findChild("pointer")->orientation();
    }
};

} // namespace vorbel
