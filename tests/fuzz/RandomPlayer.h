// A player without a plan: presses random keys and switches random settings, and watches that no rule breaks.
#pragma once

#include "engine/GameLogic.h"
#include "platform/HeadlessPlatform.h"

#include <array>
#include <cstdint>
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
};
inline constexpr std::size_t actionCount = 12;

class RandomPlayer {
public:
    explicit RandomPlayer(std::uint64_t seed);

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
    GameLogic game_;
    std::set<GamePhase> phasesSeen_;
    int progress_ = 0;
    Subscription phaseWatch_;
    Subscription throwWatch_;
};

} // namespace vorbel::test
