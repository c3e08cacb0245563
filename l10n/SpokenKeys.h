// What is said aloud of aim and balls, sentence by sentence.
#pragma once

#include <array>
#include <string_view>

namespace vorbel::L10n {

inline constexpr auto spokenKeys = std::to_array<std::string_view>({
    "number.decimalPoint",    "unit.degrees.format",     "unit.centimetres.format",
    "unit.metres.format",

    "say.angle.left.format",  "say.angle.right.format",  "say.angle.ahead",
    "say.pitch.format",       "say.power.format",

    "say.jack.left.format",   "say.jack.right.format",   "say.jack.ahead.format",
    "say.jack.none",

    "say.closest.red.format", "say.closest.blue.format", "say.closest.both.format",
    "say.red.format",         "say.blue.format",         "say.ballsLeft.format",
    "say.score.format",

    "say.rest.short.format",  "say.rest.beyond.format",  "say.rest.level",
    "say.rest.left.format",   "say.rest.right.format",   "say.rest.out",
});

} // namespace vorbel::L10n
