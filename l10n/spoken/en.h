// What is spoken, in English. A quantity has a form for each number of the language: singular|plural.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::spoken {

inline constexpr auto en = std::to_array<Text>({
    {"number.decimalPoint", "."},
    {"unit.degrees.format", "%@ degree|%@ degrees"},
    {"unit.centimetres.format", "%@ centimetre|%@ centimetres"},
    {"unit.metres.format", "%@ metre|%@ metres"},

    {"say.angle.left.format", "Angle %@ left."},
    {"say.angle.right.format", "Angle %@ right."},
    {"say.angle.ahead", "Straight ahead."},
    {"say.pitch.format", "Elevation %@."},
    {"say.power.format", "Power %@ of 100."},

    {"say.jack.left.format", "Jack %@ away, %@ to the left."},
    {"say.jack.right.format", "Jack %@ away, %@ to the right."},
    {"say.jack.ahead.format", "Jack %@ away, straight ahead."},
    {"say.jack.none", "No jack on the court."},

    {"say.closest.red.format", "Red is closest, %@."},
    {"say.closest.blue.format", "Blue is closest, %@."},
    {"say.closest.both.format", "Red and blue are equally close, %@."},
    {"say.red.format", "Red %@."},
    {"say.blue.format", "Blue %@."},
    {"say.ballsLeft.format", "Balls left: red %@, blue %@."},
    {"say.score.format", "Score: red %@, blue %@."},

    {"say.rest.short.format", "Ball at rest, %@ short of the jack."},
    {"say.rest.beyond.format", "Ball at rest, %@ beyond the jack."},
    {"say.rest.level", "Ball at rest, level with the jack."},
    {"say.rest.left.format", "%@ to its left."},
    {"say.rest.right.format", "%@ to its right."},
    {"say.rest.out", "The ball is out."},
});

} // namespace vorbel::L10n::spoken
