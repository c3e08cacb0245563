// A match on the virtual clock that is recorded into a text.
#pragma once

#include "platform/HeadlessPlatform.h"
#include "recording/Recorder.h"
#include "recording/Replay.h"

#include "engine/GameLogic.h"

#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace vorbel::recording {

struct PlayedMatch {
    VirtualQueue queue;
    MatchRandom random{{5, 0}};
    SilentAudio audio;
    Resources resources;
    GameLogic game{Platform{queue, random, audio, resources}};
    std::vector<std::shared_ptr<std::string>>
        texts{}; // of the recordings, as far as they were written and flushed
    Recorder recorder{game, random, [this] { return newOutput(); }};

    PlayedMatch() { game.startAimingLoop(); }

    void ticks(int count) { queue.advance(count * GameLogic::tickPeriod); }

    // A human's throw straight ahead, until it has been judged.
    void throwABall(int powerTicks = 60) {
        game.processInput();
        game.processInput();
        ticks(powerTicks);
        game.processInput();
        while (game.aimState == AimState::thrown) {
            ticks(1);
        }
    }

    // The computer plays the rest of the match against itself.
    void letTheComputerFinish() {
        game.redIsAI = true;
        game.blueIsAI = true;
        while (game.phase != GamePhase::gameOver) {
            if (game.phase == GamePhase::endOver) {
                game.processInput();
            }
            ticks(1);
        }
    }

    // Takes over only what was flushed, as another program would see it.
    struct Flushed final : std::stringbuf {
        explicit Flushed(std::shared_ptr<std::string> text) : seen(std::move(text)) {}
        int sync() override {
            *seen = str();
            return 0;
        }
        std::shared_ptr<std::string> seen;
    };
    struct Output final : std::ostream {
        explicit Output(std::shared_ptr<std::string> text) : std::ostream(nullptr), buffer(std::move(text)) {
            rdbuf(&buffer);
        }
        Flushed buffer;
    };
    std::unique_ptr<std::ostream> newOutput() {
        texts.push_back(std::make_shared<std::string>());
        return std::make_unique<Output>(texts.back());
    }
};

// A text's recording, which must be one.
inline Recording recordingIn(const std::string& text) {
    return std::get<Recording>(readRecording(text));
}

// A recording that is played again in a match of its own.
struct ReplayedMatch {
    explicit ReplayedMatch(Recording recording) : replay(std::move(recording)) {
        game.startAimingLoop();
        replay.begin(game);
    }

    Replay::State play() {
        while (replay.state() == Replay::State::running) {
            replay.tick();
        }
        return replay.state();
    }

    Replay replay;
    SilentAudio audio;
    Resources resources;
    GameLogic game{Platform{replay.queue(), replay.random(), audio, resources}};
};

} // namespace vorbel::recording
