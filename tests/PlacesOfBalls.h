// Where the balls of a match lie, to be compared with another match.
#pragma once

#include "engine/GameLogic.h"

#include <vector>

namespace vorbel::test {

// The centres of red's balls, of blue's, each in the order of the throws, and of the jack (the origin without one), m.
inline std::vector<Vec3> placesOfBalls(const GameLogic& game) {
    const Position thrown = game.thrownBalls();
    std::vector<Vec3> all = thrown.red;
    all.insert(all.end(), thrown.blue.begin(), thrown.blue.end());
    all.push_back(thrown.jack.value_or(Vec3(0)));
    return all;
}

} // namespace vorbel::test
