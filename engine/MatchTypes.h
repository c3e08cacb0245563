// The vocabulary of a match.
#pragma once

#include "l10n/TextKey.h"
#include "platform/scenegraph/Vector.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace vorbel {

// Stage of the current end, or of the match.
enum class GamePhase : std::uint8_t { throwingJack, playing, endOver, gameOver };

// Stage of the current throw.
enum class AimState : std::uint8_t { idle, aimingAngle, aimingPower, thrown };

// A side or a kind of ball; a turn is only ever red's or blue's.
enum class BallColor : std::uint8_t { red, blue, jack };

// Strength of the computer opponent.
enum class AIDifficulty : std::uint8_t { easy, medium, hard, ultra };

inline constexpr std::array allDifficulties{AIDifficulty::easy, AIDifficulty::medium, AIDifficulty::hard,
                                            AIDifficulty::ultra};

// Key of the level's name in the string table.
[[nodiscard]] constexpr TextKey key(AIDifficulty difficulty) {
    constexpr std::array<TextKey, 4> keys{"difficulty.easy", "difficulty.medium", "difficulty.hard",
                                          "difficulty.ultra"};
    return keys[static_cast<std::size_t>(difficulty)];
}

[[nodiscard]] constexpr BallColor opponent(BallColor side) {
    return side == BallColor::red ? BallColor::blue : BallColor::red;
}

// Ends alternate: red throws the jack, or the first ball of an extra end, in odd ends and blue in even ones.
[[nodiscard]] constexpr BallColor startingSide(int end) {
    return end % 2 != 0 ? BallColor::red : BallColor::blue;
}

// Name of the scene nodes that are balls of this kind.
[[nodiscard]] constexpr std::string_view nodeName(BallColor color) {
    constexpr std::array<std::string_view, 3> names{"red", "blue", "jack"};
    return names[static_cast<std::size_t>(color)];
}

// One finished end. Its number identifies it: ends count from 1, extra ends go on from 5.
struct EndResult {
    int end = 0;
    int red = 0;  // points red scored in it
    int blue = 0; // points blue scored in it

    [[nodiscard]] int id() const { return end; }
    bool operator==(const EndResult&) const = default;
};

// A shot that the computer considers.
struct AICandidate {
    Vec3 target{0};             // where the ball should come to rest
    double score = 0;           // desirability; the highest wins
    double powerMultiplier = 1; // above 1 for shots that must arrive with pace
};

} // namespace vorbel
