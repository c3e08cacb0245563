#include "tools/sim/ThrowWatch.h"

#include "scene/Ball.h"

namespace vorbel::sim {

ThrowWatch::ThrowWatch(const GameLogic& match, Observer observer)
    : match_(match), observer_(std::move(observer)), before_(match.aimState) {}

void ThrowWatch::look() {
    if (before_ != match_.aimState) {
        before_ == AimState::thrown ? observer_(throw_, match_) : beginThrow();
    }
    before_ = match_.aimState;
}

void ThrowWatch::beginThrow() {
    if (match_.aimState != AimState::thrown) {
        return;
    }
    const bool jack = match_.phase == GamePhase::throwingJack;
    throw_ = {.ball = jack ? BallColor::jack : match_.currentTurn.get(),
              .side = match_.currentTurn,
              .end = match_.currentEnd,
              .angle = match_.aimAngle,
              .power = match_.aimPower};
    for (const Node::Ptr& node : match_.scene.root->children()) {
        if (isBall(*node)) {
            throw_.balls.push_back(node);
        }
    }
}

} // namespace vorbel::sim
