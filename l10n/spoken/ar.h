// What is spoken, in Arabic. A quantity has a form for each number of the language:
// 1|2|3–10|11–99|all others and decimals; the first two say their number in the word.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::spoken {

inline constexpr auto ar = std::to_array<Text>({
    {"number.decimalPoint", "."},
    {"unit.degrees.format", "درجة واحدة|درجتان|%@ درجات|%@ درجة|%@ درجة"},
    {"unit.centimetres.format", "سنتيمتر واحد|سنتيمتران|%@ سنتيمترات|%@ سنتيمترًا|%@ سنتيمتر"},
    {"unit.metres.format", "متر واحد|متران|%@ أمتار|%@ مترًا|%@ متر"},

    {"say.angle.left.format", "الزاوية %@ إلى اليسار."},
    {"say.angle.right.format", "الزاوية %@ إلى اليمين."},
    {"say.angle.ahead", "إلى الأمام مباشرة."},
    {"say.pitch.format", "ارتفاع الرمية %@."},
    {"say.power.format", "القوة %@ من 100."},

    {"say.jack.left.format", "المسافة إلى الجاك %@، وإلى اليسار %@."},
    {"say.jack.right.format", "المسافة إلى الجاك %@، وإلى اليمين %@."},
    {"say.jack.ahead.format", "المسافة إلى الجاك %@، إلى الأمام مباشرة."},
    {"say.jack.none", "لا جاك في الملعب."},

    {"say.closest.red.format", "الأحمر هو الأقرب، %@."},
    {"say.closest.blue.format", "الأزرق هو الأقرب، %@."},
    {"say.closest.both.format", "الأحمر والأزرق على المسافة نفسها، %@."},
    {"say.red.format", "الأحمر، %@."},
    {"say.blue.format", "الأزرق، %@."},
    {"say.ballsLeft.format", "الكرات المتبقية: الأحمر %@، الأزرق %@."},
    {"say.score.format", "النتيجة: الأحمر %@، الأزرق %@."},

    {"say.rest.short.format", "توقفت الكرة قبل الجاك، والفارق %@."},
    {"say.rest.beyond.format", "توقفت الكرة خلف الجاك، والفارق %@."},
    {"say.rest.level", "توقفت الكرة بمحاذاة الجاك."},
    {"say.rest.left.format", "%@ إلى يسار الجاك."},
    {"say.rest.right.format", "%@ إلى يمين الجاك."},
    {"say.rest.out", "خرجت الكرة من الملعب."},
});

} // namespace vorbel::L10n::spoken
