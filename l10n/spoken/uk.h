// What is spoken, in Ukrainian. A quantity has a form for each number of the language:
// 1, 21 …|2–4, 22 …|0, 5–20 …|with decimals.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::spoken {

inline constexpr auto uk = std::to_array<Text>({
    {"number.decimalPoint", ","},
    {"unit.degrees.format", "%@ градус|%@ градуси|%@ градусів|%@ градуса"},
    {"unit.centimetres.format", "%@ сантиметр|%@ сантиметри|%@ сантиметрів|%@ сантиметра"},
    {"unit.metres.format", "%@ метр|%@ метри|%@ метрів|%@ метра"},

    {"say.angle.left.format", "Кут %@ ліворуч."},
    {"say.angle.right.format", "Кут %@ праворуч."},
    {"say.angle.ahead", "Прямо вперед."},
    {"say.pitch.format", "Висота кидка %@."},
    {"say.power.format", "Сила %@ зі 100."},

    {"say.jack.left.format", "До джека %@, лівіше на %@."},
    {"say.jack.right.format", "До джека %@, правіше на %@."},
    {"say.jack.ahead.format", "До джека %@, прямо попереду."},
    {"say.jack.none", "Джека на майданчику немає."},

    {"say.closest.red.format", "Найближче червоні: %@."},
    {"say.closest.blue.format", "Найближче сині: %@."},
    {"say.closest.both.format", "Червоні й сині однаково близько: %@."},
    {"say.red.format", "Червоні: %@."},
    {"say.blue.format", "Сині: %@."},
    {"say.ballsLeft.format", "Залишилося м’ячів: у червоних %@, у синіх %@."},
    {"say.score.format", "Рахунок: червоні %@, сині %@."},

    {"say.rest.short.format", "М’яч зупинився за %@ до джека."},
    {"say.rest.beyond.format", "М’яч зупинився на %@ далі за джек."},
    {"say.rest.level", "М’яч зупинився врівень із джеком."},
    {"say.rest.left.format", "На %@ лівіше від джека."},
    {"say.rest.right.format", "На %@ правіше від джека."},
    {"say.rest.out", "М’яч поза грою."},
});

} // namespace vorbel::L10n::spoken
