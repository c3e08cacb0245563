// The vocabulary of a match.
#pragma once

#include "l10n/TextKey.h"

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

inline constexpr int ballsPerSide = 6; // colour balls of each side in each end

// Ends alternate: red throws the jack, or the first ball of an extra end, in odd ends and blue in even ones.
[[nodiscard]] constexpr BallColor startingSide(int end) {
    return end % 2 != 0 ? BallColor::red : BallColor::blue;
}

// One finished end. Its number identifies it: ends count from 1, extra ends go on from 5.
struct EndResult {
    int end = 0;
    int red = 0;  // points red scored in it
    int blue = 0; // points blue scored in it

    [[nodiscard]] int id() const { return end; }
    bool operator==(const EndResult&) const = default;
};

} // namespace vorbel
