// The court: what is drawn and what is judged come from here. Metres; x to the right, y up, throws travel
// towards −z; the origin lies on the court at the middle of the throwing line.
#pragma once

#include "math/Vector.h"
#include "rules/BallModel.h"
#include "rules/MatchTypes.h"

namespace vorbel::court {

inline constexpr double width = 6;
inline constexpr double length = 12.5;        // from the throwing line to the far end
inline constexpr double sideLine = width / 2; // to both sides of the middle

// The line that the jack must cross: a V open towards the far end.
inline constexpr double vLineApexZ = -1.5; // in the middle of the court
inline constexpr double vLineSideZ = -3.5; // at the side lines

// The throwing area behind the throwing line, divided into boxes of equal width, counted from the left.
inline constexpr double throwingAreaDepth = 2;
inline constexpr int throwingBoxes = 6;
[[nodiscard]] constexpr int homeBox(BallColor side) { // of red or blue
    return side == BallColor::red ? 2 : 3;
}

// The floor that balls roll on lies a little below the court that is seen: they seem to press into it.
inline constexpr double floorY = -0.015;
inline constexpr double restingHeight = floorY + ball::radius; // of a resting ball's centre

// The cross, where a jack is put that left the court, and that of an extra end.
inline constexpr Vec3 cross{0, restingHeight, -length / 2};

// Where a side's balls wait and are thrown from, the jack too.
[[nodiscard]] constexpr Vec3 throwOrigin(BallColor side) {
    return {side == BallColor::red ? -1.0 : 1.0, restingHeight, -0.5};
}

// The same place in the court plane, raised or lowered to a resting ball's height.
[[nodiscard]] constexpr Vec3 restingAt(const Vec3& place) {
    return {place.x, restingHeight, place.z};
}

} // namespace vorbel::court
