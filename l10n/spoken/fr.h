// What is spoken, in French. A quantity has a form for each number of the language: singular|plural.
// Before : stands a no-break space (U+00A0).
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::spoken {

inline constexpr auto fr = std::to_array<Text>({
    {"number.decimalPoint", ","},
    {"unit.degrees.format", "%@ degré|%@ degrés"},
    {"unit.centimetres.format", "%@ centimètre|%@ centimètres"},
    {"unit.metres.format", "%@ mètre|%@ mètres"},

    {"say.angle.left.format", "Angle : %@ à gauche."},
    {"say.angle.right.format", "Angle : %@ à droite."},
    {"say.angle.ahead", "Tout droit."},
    {"say.pitch.format", "Hauteur : %@."},
    {"say.power.format", "Force : %@ sur 100."},

    {"say.jack.left.format", "Jack à %@, %@ sur la gauche."},
    {"say.jack.right.format", "Jack à %@, %@ sur la droite."},
    {"say.jack.ahead.format", "Jack à %@, tout droit."},
    {"say.jack.none", "Pas de jack sur le terrain."},

    {"say.closest.red.format", "Rouge est le plus proche, à %@."},
    {"say.closest.blue.format", "Bleu est le plus proche, à %@."},
    {"say.closest.both.format", "Rouge et Bleu à égale distance : %@."},
    {"say.red.format", "Rouge à %@."},
    {"say.blue.format", "Bleu à %@."},
    {"say.ballsLeft.format", "Balles restantes : Rouge %@, Bleu %@."},
    {"say.score.format", "Score : Rouge %@, Bleu %@."},

    {"say.rest.short.format", "Balle arrêtée %@ devant le jack."},
    {"say.rest.beyond.format", "Balle arrêtée %@ derrière le jack."},
    {"say.rest.level", "Balle arrêtée à hauteur du jack."},
    {"say.rest.left.format", "%@ à sa gauche."},
    {"say.rest.right.format", "%@ à sa droite."},
    {"say.rest.out", "La balle est sortie."},
});

} // namespace vorbel::L10n::spoken
