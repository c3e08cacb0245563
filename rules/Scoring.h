// The points of an end and the result of a match.
#pragma once

#include "rules/Position.h"

#include <cstdint>

namespace vorbel {

inline constexpr int endsPerMatch = 4; // and then extra ends until the scores differ

struct Points {
    int red = 0;
    int blue = 0;
    bool operator==(const Points&) const = default;
};

// The side of the ball closest to the jack gets a point for each of its balls that is closer than the other
// side's closest. When both sides' closest balls are exactly equally far, each gets a point for each of its
// balls at that distance. Every ball counts, wherever it lies. Needs a jack.
[[nodiscard]] Points pointsOfEnd(const Position& position);

// How a match goes on after that end with these scores, the end's points included.
enum class AfterEnd : std::uint8_t { nextEnd, extraEnd, matchOver };
[[nodiscard]] AfterEnd afterEnd(int end, Points score);

// The side that is named the winner: red with more points, otherwise blue. A match ends decided.
[[nodiscard]] BallColor winner(Points score);

} // namespace vorbel
