// A player without a plan: presses random keys and switches random settings, and watches that no rule breaks.
#pragma once

#include "engine/GameLogic.h"
#include "platform/HeadlessPlatform.h"
#include "recording/Recorder.h"

#include <array>
#include <cstdint>
#include <optional>
#include <set>
#include <string>

namespace vorbel::test {

// The things a player can do at any time.
enum class Action : std::uint8_t {
    space,
    left,
    right,
    up,
    down,
    toggleRedComputer,
    toggleBlueComputer,
    nextDifficulty,
    nextClass,
    nextLanguage,
    newMatch,
    newTournament,
    takeBack,
    turnFinely,
    morePower,
    otherPace,
    pauseAndResume,
};
inline constexpr std::size_t actionCount = 17;

class RandomPlayer {
public:
    explicit RandomPlayer(std::uint64_t seed);

    // Each match from now on into an output of its own. Call it before anything is performed.
    void record(recording::Recorder::OpenOutput open) { recorder_.emplace(game_, random_, std::move(open)); }

    void perform(Action action);
    void wait(double seconds) { platform_.queue.advance(seconds); }

    // Empty as long as everything holds, else the first rule found broken.
    [[nodiscard]] std::string brokenInvariant() const;

    // What has happened since the last call of this: throws released and ends scored.
    [[nodiscard]] int takeProgress();

    [[nodiscard]] const std::set<GamePhase>& phasesSeen() const { return phasesSeen_; }
    [[nodiscard]] const GameLogic& game() const { return game_; }

private:
    [[nodiscard]] std::string brokenBall() const;

    HeadlessPlatform platform_;
    recording::MatchRandom random_;
    GameLogic game_;
    std::optional<recording::Recorder> recorder_;
    std::set<GamePhase> phasesSeen_;
    int progress_ = 0;
    Subscription phaseWatch_;
    Subscription throwWatch_;
};

} // namespace vorbel::test
