// What is spoken, in Turkish. A quantity has a form for each number of the language: singular|plural.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::spoken {

inline constexpr auto tr = std::to_array<Text>({
    {"number.decimalPoint", ","},
    {"unit.degrees.format", "%@ derece|%@ derece"},
    {"unit.centimetres.format", "%@ santimetre|%@ santimetre"},
    {"unit.metres.format", "%@ metre|%@ metre"},

    {"say.angle.left.format", "Açı sola %@."},
    {"say.angle.right.format", "Açı sağa %@."},
    {"say.angle.ahead", "Tam karşıya."},
    {"say.pitch.format", "Yükseklik %@."},
    {"say.power.format", "Güç 100 üzerinden %@."},

    {"say.jack.left.format", "Hedef top %@ uzakta, %@ solda."},
    {"say.jack.right.format", "Hedef top %@ uzakta, %@ sağda."},
    {"say.jack.ahead.format", "Hedef top %@ uzakta, tam karşıda."},
    {"say.jack.none", "Sahada hedef top yok."},

    {"say.closest.red.format", "En yakın kırmızı, %@."},
    {"say.closest.blue.format", "En yakın mavi, %@."},
    {"say.closest.both.format", "Kırmızı ve mavi eşit uzaklıkta, %@."},
    {"say.red.format", "Kırmızı %@."},
    {"say.blue.format", "Mavi %@."},
    {"say.ballsLeft.format", "Kalan top: kırmızı %@, mavi %@."},
    {"say.score.format", "Skor: kırmızı %@, mavi %@."},

    {"say.rest.short.format", "Top, hedef topa %@ kala durdu."},
    {"say.rest.beyond.format", "Top, hedef topu %@ geçip durdu."},
    {"say.rest.level", "Top, hedef topla aynı hizada durdu."},
    {"say.rest.left.format", "Hedef topun %@ solunda."},
    {"say.rest.right.format", "Hedef topun %@ sağında."},
    {"say.rest.out", "Top dışarı çıktı."},
});

} // namespace vorbel::L10n::spoken
