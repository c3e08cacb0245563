// What moves a match on from outside of its tick.
#pragma once

#include <cstdint>

namespace vorbel {

// A player's operation that has an effect, or a step of the computer's turn, whose time is the clock's and not the
// tick's. A match that is begun in the same way, with the same actions between the same ticks, is the same match.
struct MatchAction {
    enum class Kind : std::uint8_t { press, takeBack, turn, raise, power, pace, step };

    Kind kind = Kind::press;
    double by = 0; // rad of turn and raise, percent of power; of pace the new one, 0…1; 0 of the others

    bool operator==(const MatchAction&) const = default;
};

} // namespace vorbel
