// Plays a match between two computer sides without a window, on a virtual clock.
#pragma once

#include "platform/HeadlessPlatform.h"
#include "recording/Recorder.h"
#include "tools/sim/ThrowWatch.h"

#include <cstdint>
#include <optional>

namespace vorbel::sim {

struct Pairing {
    std::uint64_t seed = 0;
    AIDifficulty red = AIDifficulty::medium;
    AIDifficulty blue = AIDifficulty::medium;
};

// One match from its first throw to its result. The same pairing gives the same match, another seed another.
class MatchPlayer {
public:
    explicit MatchPlayer(const Pairing& pairing);

    // Called after every throw, when the rules have judged it.
    void setThrowObserver(ThrowWatch::Observer observer) { watch_.emplace(game_, std::move(observer)); }

    // Writes it down as well. Call it before it is played.
    void record(recording::Recorder::OpenOutput open) { recorder_.emplace(game_, random_, std::move(open)); }
    [[nodiscard]] bool isRecorded() const {
        return recorder_ && recorder_->isWritten();
    } // as far as it was played

    // Plays to the end. False when the match did not end within a simulated day: a broken rule.
    bool play();

    [[nodiscard]] const GameLogic& game() const { return game_; }
    [[nodiscard]] double simulatedSeconds() const { return platform_.queue.now(); }

private:
    HeadlessPlatform platform_;
    recording::MatchRandom random_;
    Pairing pairing_;
    GameLogic game_;
    Subscription levelFollowsTurn_;
    std::optional<ThrowWatch> watch_;
    std::optional<recording::Recorder> recorder_;
};

} // namespace vorbel::sim
