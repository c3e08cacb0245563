#include "rules/TurnOrder.h"

namespace vorbel {

BallColor nextToThrow(const Position& position, BallsLeft left) {
    if (left.red == 0 || left.blue == 0) {
        return left.red == 0 ? BallColor::blue : BallColor::red;
    }
    if (!position.jack) {
        return BallColor::red;
    }
    // A side without a ball in play is infinitely far.
    const double red = closestBall(position.red, *position.jack).distance;
    const double blue = closestBall(position.blue, *position.jack).distance;
    return red < blue ? BallColor::blue : BallColor::red;
}

} // namespace vorbel
