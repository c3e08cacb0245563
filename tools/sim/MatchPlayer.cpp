#include "tools/sim/MatchPlayer.h"

#include "scene/Ball.h"

namespace vorbel::sim {

MatchPlayer::MatchPlayer(const Pairing& pairing)
    : platform_(pairing.seed), pairing_(pairing), game_(platform_.services()) {
    // The game knows one level for both sides: here it follows the turn.
    game_.aiDifficulty = pairing_.red;
    levelFollowsTurn_ = game_.currentTurn.onWillChange([this](const BallColor& side) {
        game_.aiDifficulty = side == BallColor::red ? pairing_.red : pairing_.blue;
    });
    game_.startAimingLoop();
    game_.redIsAI = true;
    game_.blueIsAI = true;
}

bool MatchPlayer::play() {
    constexpr double simulatedDay = 86'400; // s
    AimState before = game_.aimState;
    while (game_.phase != GamePhase::gameOver && simulatedSeconds() < simulatedDay) {
        if (game_.phase == GamePhase::endOver) {
            game_.processInput();
        }
        platform_.queue.advance(GameLogic::tickPeriod);
        if (observer_ && before != game_.aimState) {
            before == AimState::thrown ? finishThrow() : beginThrow();
        }
        before = game_.aimState;
    }
    return game_.phase == GamePhase::gameOver;
}

void MatchPlayer::beginThrow() {
    if (game_.aimState != AimState::thrown) {
        return;
    }
    const bool jack = game_.phase == GamePhase::throwingJack;
    throw_ = {.ball = jack ? BallColor::jack : game_.currentTurn.get(),
              .side = game_.currentTurn,
              .end = game_.currentEnd,
              .angle = game_.aimAngle,
              .power = game_.aimPower};
    for (const Node::Ptr& node : game_.scene.root->children()) {
        if (isBall(*node)) {
            throw_.balls.push_back(node);
        }
    }
}

void MatchPlayer::finishThrow() {
    observer_(throw_, game_);
}

} // namespace vorbel::sim
