// What is spoken, in Italian. A quantity has a form for each number of the language: singular|plural.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::spoken {

inline constexpr auto it = std::to_array<Text>({
    {"number.decimalPoint", ","},
    {"unit.degrees.format", "%@ grado|%@ gradi"},
    {"unit.centimetres.format", "%@ centimetro|%@ centimetri"},
    {"unit.metres.format", "%@ metro|%@ metri"},

    {"say.angle.left.format", "Angolo: %@ a sinistra."},
    {"say.angle.right.format", "Angolo: %@ a destra."},
    {"say.angle.ahead", "Dritto davanti."},
    {"say.pitch.format", "Altezza: %@."},
    {"say.power.format", "Forza: %@ su 100."},

    {"say.jack.left.format", "Jack a %@, %@ a sinistra."},
    {"say.jack.right.format", "Jack a %@, %@ a destra."},
    {"say.jack.ahead.format", "Jack a %@, dritto davanti."},
    {"say.jack.none", "Nessun jack in campo."},

    {"say.closest.red.format", "Rosso è il più vicino, a %@."},
    {"say.closest.blue.format", "Blu è il più vicino, a %@."},
    {"say.closest.both.format", "Rosso e Blu alla stessa distanza: %@."},
    {"say.red.format", "Rosso a %@."},
    {"say.blue.format", "Blu a %@."},
    {"say.ballsLeft.format", "Bocce rimaste: Rosso %@, Blu %@."},
    {"say.score.format", "Punti: Rosso %@, Blu %@."},

    {"say.rest.short.format", "Boccia ferma %@ prima del jack."},
    {"say.rest.beyond.format", "Boccia ferma %@ oltre il jack."},
    {"say.rest.level", "Boccia ferma all’altezza del jack."},
    {"say.rest.left.format", "%@ alla sua sinistra."},
    {"say.rest.right.format", "%@ alla sua destra."},
    {"say.rest.out", "La boccia è uscita."},
});

} // namespace vorbel::L10n::spoken
