// What is spoken, in Russian. A quantity has a form for each number of the language:
// 1, 21 …|2–4, 22 …|0, 5–20 …|with decimals.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::spoken {

inline constexpr auto ru = std::to_array<Text>({
    {"number.decimalPoint", ","},
    {"unit.degrees.format", "%@ градус|%@ градуса|%@ градусов|%@ градуса"},
    {"unit.centimetres.format", "%@ сантиметр|%@ сантиметра|%@ сантиметров|%@ сантиметра"},
    {"unit.metres.format", "%@ метр|%@ метра|%@ метров|%@ метра"},

    {"say.angle.left.format", "Угол %@ влево."},
    {"say.angle.right.format", "Угол %@ вправо."},
    {"say.angle.ahead", "Прямо вперёд."},
    {"say.pitch.format", "Высота броска %@."},
    {"say.power.format", "Сила %@ из 100."},

    {"say.jack.left.format", "До кона %@, левее на %@."},
    {"say.jack.right.format", "До кона %@, правее на %@."},
    {"say.jack.ahead.format", "До кона %@, прямо впереди."},
    {"say.jack.none", "Кона на площадке нет."},

    {"say.closest.red.format", "Ближе всех красные: %@."},
    {"say.closest.blue.format", "Ближе всех синие: %@."},
    {"say.closest.both.format", "Красные и синие одинаково близко: %@."},
    {"say.red.format", "Красные: %@."},
    {"say.blue.format", "Синие: %@."},
    {"say.ballsLeft.format", "Осталось мячей: у красных %@, у синих %@."},
    {"say.score.format", "Счёт: красные %@, синие %@."},

    {"say.rest.short.format", "Мяч остановился за %@ до кона."},
    {"say.rest.beyond.format", "Мяч остановился на %@ дальше кона."},
    {"say.rest.level", "Мяч остановился вровень с коном."},
    {"say.rest.left.format", "На %@ левее кона."},
    {"say.rest.right.format", "На %@ правее кона."},
    {"say.rest.out", "Мяч вышел в аут."},
});

} // namespace vorbel::L10n::spoken
