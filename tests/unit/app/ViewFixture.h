// A content view without a window, on a clock that moves only when told to.
#pragma once

#include "app/window/ContentView.h"
#include "platform/HeadlessPlatform.h"
#include "platform/store/MemoryDefaults.h"
#include "tests/MatchSetup.h"

#include <gtest/gtest.h>

#include <functional>
#include <utility>

namespace vorbel {

class ViewTest : public testing::Test {
protected:
    HeadlessPlatform platform{1};
    MemoryDefaults defaults;
    ContentView view{platform.services(), defaults};
    GameLogic& match = view.gameLogic();
    MatchSetup setup{match};
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
        setup.state().redScore = redScore;
        setup.state().blueScore = blueScore;
        setup.state().phase = GamePhase::gameOver;
    }
    void finishMatch(int redScore, int blueScore) {
        endMatch(redScore, blueScore);
        letQueueRun();
    }

    // Red's jack, by its keys, until it rests.
    void throwJack() {
        appearAndHideMenu();
        for (int stage = 0; stage < 3; ++stage) { // aim, power, throw
            platform.queue.advance(0.5);
            keyboard.pressAction();
        }
        playUntil(
            [this] { return match.phase == GamePhase::playing || match.currentTurn != BallColor::red; });
    }

    // The computer plays both sides to the end of this end.
    void playEnd() {
        appearAndHideMenu();
        settings.setRedAIOn(true);
        settings.setBlueAIOn(true);
        playUntil([this] { return match.phase == GamePhase::endOver || match.phase == GamePhase::gameOver; });
    }
    void playMatch() {
        for (playEnd(); match.phase == GamePhase::endOver; playEnd()) {
            keyboard.pressAction();
        }
    }

    void playUntil(const std::function<bool()>& done) {
        for (int tick = 0; tick < 100'000 && !done(); ++tick) {
            platform.queue.advance(GameLogic::tickPeriod);
        }
        ASSERT_TRUE(done());
    }

    void appearAndHideMenu() {
        if (!std::exchange(appeared_, true)) {
            view.appear();
        }
        hideMenu();
    }

    [[nodiscard]] Quat pointerOrientation() const {
        return match.scene.root->findChild("pointer")->orientation();
    }

private:
    bool appeared_ = false;
};

} // namespace vorbel
