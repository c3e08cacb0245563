// What is spoken, in German. A quantity has a form for each number of the language: singular|plural.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::spoken {

inline constexpr auto de = std::to_array<Text>({
    {"number.decimalPoint", ","},
    {"unit.degrees.format", "%@ Grad|%@ Grad"},
    {"unit.centimetres.format", "%@ Zentimeter|%@ Zentimeter"},
    {"unit.metres.format", "%@ Meter|%@ Meter"},

    {"say.angle.left.format", "Richtung %@ links."},
    {"say.angle.right.format", "Richtung %@ rechts."},
    {"say.angle.ahead", "Richtung geradeaus."},
    {"say.pitch.format", "Wurfhöhe %@."},
    {"say.power.format", "Wurfstärke %@ von 100."},

    {"say.jack.left.format", "Jackball %@ entfernt, %@ nach links."},
    {"say.jack.right.format", "Jackball %@ entfernt, %@ nach rechts."},
    {"say.jack.ahead.format", "Jackball %@ entfernt, geradeaus."},
    {"say.jack.none", "Kein Jackball auf dem Spielfeld."},

    {"say.closest.red.format", "Rot liegt am nächsten, %@."},
    {"say.closest.blue.format", "Blau liegt am nächsten, %@."},
    {"say.closest.both.format", "Rot und Blau liegen gleich nah, %@."},
    {"say.red.format", "Rot %@."},
    {"say.blue.format", "Blau %@."},
    {"say.ballsLeft.format", "Noch zu werfen: Rot %@, Blau %@."},
    {"say.score.format", "Punkte: Rot %@, Blau %@."},

    {"say.rest.short.format", "Ball liegt %@ vor dem Jackball."},
    {"say.rest.beyond.format", "Ball liegt %@ hinter dem Jackball."},
    {"say.rest.level", "Ball liegt auf Höhe des Jackballs."},
    {"say.rest.left.format", "%@ links davon."},
    {"say.rest.right.format", "%@ rechts davon."},
    {"say.rest.out", "Der Ball ist im Aus."},
});

} // namespace vorbel::L10n::spoken
