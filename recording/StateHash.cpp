#include "recording/StateHash.h"

#include "engine/GameLogic.h"

#include <bit>

namespace vorbel::recording {

// Fowler–Noll–Vo's step by words instead of bytes; the shift brings the high bits, which hold a number's exponent, back
// to where the next product spreads them.
void StateHash::add(std::uint64_t word) {
    constexpr std::uint64_t prime = 0x100000001b3;
    constexpr unsigned half = 32;
    value_ = (value_ ^ word) * prime;
    value_ ^= value_ >> half;
}

void StateHash::add(double number) {
    add(std::bit_cast<std::uint64_t>(number));
}

void StateHash::addTick(const GameLogic& game) {
    const auto addBall = [this](const Vec3& place) {
        add(place.x);
        add(place.y);
        add(place.z);
    };
    const Position balls = game.thrownBalls();
    add(balls.red.size());
    std::ranges::for_each(balls.red, addBall);
    add(balls.blue.size());
    std::ranges::for_each(balls.blue, addBall);
    if (balls.jack) {
        addBall(*balls.jack);
    }
    add(game.aimAngle.get());
    add(game.aimPitch.get());
    add(game.aimPower.get());
    for (const int number :
         {static_cast<int>(game.aimState.get()), static_cast<int>(game.phase.get()),
          static_cast<int>(game.currentTurn.get()), game.redBallsLeft.get(), game.blueBallsLeft.get(),
          game.redScore.get(), game.blueScore.get(), game.currentEnd.get()}) {
        add(static_cast<std::uint64_t>(number));
    }
}

} // namespace vorbel::recording
