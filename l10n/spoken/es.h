// What is spoken, in Spanish. A quantity has a form for each number of the language: singular|plural.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::spoken {

inline constexpr auto es = std::to_array<Text>({
    {"number.decimalPoint", ","},
    {"unit.degrees.format", "%@ grado|%@ grados"},
    {"unit.centimetres.format", "%@ centímetro|%@ centímetros"},
    {"unit.metres.format", "%@ metro|%@ metros"},

    {"say.angle.left.format", "Ángulo: %@ a la izquierda."},
    {"say.angle.right.format", "Ángulo: %@ a la derecha."},
    {"say.angle.ahead", "Recto al frente."},
    {"say.pitch.format", "Altura: %@."},
    {"say.power.format", "Fuerza: %@ de 100."},

    {"say.jack.left.format", "Jack a %@, %@ a la izquierda."},
    {"say.jack.right.format", "Jack a %@, %@ a la derecha."},
    {"say.jack.ahead.format", "Jack a %@, justo de frente."},
    {"say.jack.none", "No hay jack en la pista."},

    {"say.closest.red.format", "Rojo es el más cercano, a %@."},
    {"say.closest.blue.format", "Azul es el más cercano, a %@."},
    {"say.closest.both.format", "Rojo y Azul están igual de cerca, a %@."},
    {"say.red.format", "Rojo, a %@."},
    {"say.blue.format", "Azul, a %@."},
    {"say.ballsLeft.format", "Bolas por lanzar: Rojo %@, Azul %@."},
    {"say.score.format", "Puntos: Rojo %@, Azul %@."},

    {"say.rest.short.format", "Bola parada, %@ antes del jack."},
    {"say.rest.beyond.format", "Bola parada, %@ más allá del jack."},
    {"say.rest.level", "Bola parada, a la altura del jack."},
    {"say.rest.left.format", "%@ a su izquierda."},
    {"say.rest.right.format", "%@ a su derecha."},
    {"say.rest.out", "La bola está fuera."},
});

} // namespace vorbel::L10n::spoken
