// Plays a match between two computer sides without a window, on a virtual clock.
#pragma once

#include "engine/GameLogic.h"
#include "platform/HeadlessPlatform.h"

#include <cstdint>
#include <functional>

namespace vorbel::sim {

struct Pairing {
    std::uint64_t seed = 0;
    AIDifficulty red = AIDifficulty::medium;
    AIDifficulty blue = AIDifficulty::medium;
};

// One throw, from its release to the moment when all balls had come to rest.
struct Throw {
    BallColor ball = BallColor::jack; // what was thrown
    BallColor side = BallColor::red;  // by whom
    int end = 1;
    double angle = 0;               // rad, as in GameLogic::aimAngle
    double power = 0;               // percent
    std::vector<Node::Ptr> balls{}; // all on the court, in the order of their throws, at their last places
};

// One match from its first throw to its result. The same pairing gives the same match, another seed another.
class MatchPlayer {
public:
    using ThrowObserver = std::function<void(const Throw&, const GameLogic&)>;

    explicit MatchPlayer(const Pairing& pairing);

    // Called after every throw, when the rules have judged it.
    void setThrowObserver(ThrowObserver observer) { observer_ = std::move(observer); }

    // Plays to the end. False when the match did not end within a simulated day: a broken rule.
    bool play();

    [[nodiscard]] const GameLogic& game() const { return game_; }
    [[nodiscard]] double simulatedSeconds() const { return platform_.queue.now(); }

private:
    void beginThrow();
    void finishThrow();

    HeadlessPlatform platform_;
    Pairing pairing_;
    GameLogic game_;
    Subscription levelFollowsTurn_;
    ThrowObserver observer_;
    Throw throw_;
};

} // namespace vorbel::sim
