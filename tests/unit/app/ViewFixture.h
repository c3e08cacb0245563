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

    // Runs what was posted to the main queue.
    void letQueueRun() { platform.queue.advance(0); }

    void hideMenu() { view.setMenuScreen(MenuScreen::hidden); }

    void finishMatch(int redScore, int blueScore) {
        match.redScore = redScore;
        match.blueScore = blueScore;
        match.phase = GamePhase::gameOver;
        letQueueRun();
    }

    [[nodiscard]] Quat pointerOrientation() const {
        return match.scene.root->findChild("pointer")->orientation();
    }
};

} // namespace vorbel
