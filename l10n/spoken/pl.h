// What is spoken, in Polish. A quantity has a form for each number of the language:
// 1|2–4, 22–24 …|0, 5–21, 25–31 …|with decimals.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::spoken {

inline constexpr auto pl = std::to_array<Text>({
    {"number.decimalPoint", ","},
    {"unit.degrees.format", "%@ stopień|%@ stopnie|%@ stopni|%@ stopnia"},
    {"unit.centimetres.format", "%@ centymetr|%@ centymetry|%@ centymetrów|%@ centymetra"},
    {"unit.metres.format", "%@ metr|%@ metry|%@ metrów|%@ metra"},

    {"say.angle.left.format", "Kąt %@ w lewo."},
    {"say.angle.right.format", "Kąt %@ w prawo."},
    {"say.angle.ahead", "Prosto przed siebie."},
    {"say.pitch.format", "Wysokość rzutu %@."},
    {"say.power.format", "Siła %@ na 100."},

    {"say.jack.left.format", "Do jacka %@, %@ w lewo."},
    {"say.jack.right.format", "Do jacka %@, %@ w prawo."},
    {"say.jack.ahead.format", "Do jacka %@, prosto przed siebie."},
    {"say.jack.none", "Na boisku nie ma jacka."},

    {"say.closest.red.format", "Najbliżej czerwoni: %@."},
    {"say.closest.blue.format", "Najbliżej niebiescy: %@."},
    {"say.closest.both.format", "Czerwoni i niebiescy jednakowo blisko: %@."},
    {"say.red.format", "Czerwoni: %@."},
    {"say.blue.format", "Niebiescy: %@."},
    {"say.ballsLeft.format", "Pozostałe bile: czerwoni %@, niebiescy %@."},
    {"say.score.format", "Wynik: czerwoni %@, niebiescy %@."},

    {"say.rest.short.format", "Bila stanęła %@ przed jackiem."},
    {"say.rest.beyond.format", "Bila stanęła %@ za jackiem."},
    {"say.rest.level", "Bila stanęła na wysokości jacka."},
    {"say.rest.left.format", "%@ na lewo od jacka."},
    {"say.rest.right.format", "%@ na prawo od jacka."},
    {"say.rest.out", "Bila poza polem gry."},
});

} // namespace vorbel::L10n::spoken
