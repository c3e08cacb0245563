// What is spoken, in Dutch. A quantity has a form for each number of the language: singular|plural.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::spoken {

inline constexpr auto nl = std::to_array<Text>({
    {"number.decimalPoint", ","},
    {"unit.degrees.format", "%@ graad|%@ graden"},
    {"unit.centimetres.format", "%@ centimeter|%@ centimeter"},
    {"unit.metres.format", "%@ meter|%@ meter"},

    {"say.angle.left.format", "Hoek %@ naar links."},
    {"say.angle.right.format", "Hoek %@ naar rechts."},
    {"say.angle.ahead", "Recht vooruit."},
    {"say.pitch.format", "Hoogte %@."},
    {"say.power.format", "Kracht %@ van 100."},

    {"say.jack.left.format", "De jack ligt op %@, %@ naar links."},
    {"say.jack.right.format", "De jack ligt op %@, %@ naar rechts."},
    {"say.jack.ahead.format", "De jack ligt op %@, recht vooruit."},
    {"say.jack.none", "Er ligt geen jack op het veld."},

    {"say.closest.red.format", "Rood ligt het dichtstbij, op %@."},
    {"say.closest.blue.format", "Blauw ligt het dichtstbij, op %@."},
    {"say.closest.both.format", "Rood en blauw liggen even dichtbij, op %@."},
    {"say.red.format", "Rood op %@."},
    {"say.blue.format", "Blauw op %@."},
    {"say.ballsLeft.format", "Ballen over: rood %@, blauw %@."},
    {"say.score.format", "Stand: rood %@, blauw %@."},

    {"say.rest.short.format", "De bal ligt stil, %@ voor de jack."},
    {"say.rest.beyond.format", "De bal ligt stil, %@ voorbij de jack."},
    {"say.rest.level", "De bal ligt stil, op gelijke hoogte met de jack."},
    {"say.rest.left.format", "%@ links ervan."},
    {"say.rest.right.format", "%@ rechts ervan."},
    {"say.rest.out", "De bal is uit."},
});

} // namespace vorbel::L10n::spoken
