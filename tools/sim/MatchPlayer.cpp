#include "tools/sim/MatchPlayer.h"

namespace vorbel::sim {

MatchPlayer::MatchPlayer(const Pairing& pairing)
    : platform_(pairing.seed),
      random_({pairing.seed, 0}),
      pairing_(pairing),
      game_({platform_.queue, random_, platform_.audio, platform_.resources}) {
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
    while (game_.phase != GamePhase::gameOver && simulatedSeconds() < simulatedDay) {
        if (game_.phase == GamePhase::endOver) {
            game_.processInput();
        }
        platform_.queue.advance(GameLogic::tickPeriod);
        if (watch_) {
            watch_->look();
        }
    }
    return game_.phase == GamePhase::gameOver;
}

} // namespace vorbel::sim
