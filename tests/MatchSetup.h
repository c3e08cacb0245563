// The one door through which tests put a match into a position that play would take long to reach.
#pragma once

#include "engine/GameLogic.h"
#include "rules/CourtGeometry.h"

namespace vorbel {

class MatchSetup {
public:
    // The match must outlive this.
    explicit MatchSetup(GameLogic& game) : game_(game) {}

    // Observers hear of what is written here as of any change.
    [[nodiscard]] MatchState& state() { return game_.state_; }

    // A ball that lies there, as if it had been thrown.
    Node::Ptr place(BallColor color, double x, double z) {
        return game_.balls_.place(color, {x, court::restingHeight, z});
    }
    void removeJack() { game_.balls_.removeJack(); }
    // No balls at all, not even a waiting one: it is launched, then cleared away with all others.
    void emptyCourt() {
        game_.balls_.launch({});
        game_.balls_.clear();
    }

private:
    GameLogic& game_;
};

} // namespace vorbel
