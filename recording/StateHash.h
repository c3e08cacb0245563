// One number for all that has happened in a match so far.
#pragma once

#include <cstdint>

namespace vorbel {
class GameLogic;
}

namespace vorbel::recording {

// Not for secrets: it tells matches that went differently apart, by a single bit of a single tick.
class StateHash {
public:
    // Once after each tick: the places of all thrown balls, the aim, turn, balls left and score.
    void addTick(const GameLogic& game);

    [[nodiscard]] std::uint64_t value() const { return value_; }

private:
    void add(std::uint64_t word);
    void add(double number);

    std::uint64_t value_ = 0xcbf29ce484222325;
};

} // namespace vorbel::recording
