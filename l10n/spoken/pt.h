// What is spoken, in Portuguese. A quantity has a form for each number of the language: singular|plural.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::spoken {

inline constexpr auto pt = std::to_array<Text>({
    {"number.decimalPoint", ","},
    {"unit.degrees.format", "%@ grau|%@ graus"},
    {"unit.centimetres.format", "%@ centímetro|%@ centímetros"},
    {"unit.metres.format", "%@ metro|%@ metros"},

    {"say.angle.left.format", "Ângulo: %@ à esquerda."},
    {"say.angle.right.format", "Ângulo: %@ à direita."},
    {"say.angle.ahead", "Em linha reta."},
    {"say.pitch.format", "Altura: %@."},
    {"say.power.format", "Força: %@ de 100."},

    {"say.jack.left.format", "Jack a %@, %@ à esquerda."},
    {"say.jack.right.format", "Jack a %@, %@ à direita."},
    {"say.jack.ahead.format", "Jack a %@, bem em frente."},
    {"say.jack.none", "Não há jack no campo de jogo."},

    {"say.closest.red.format", "Vermelho está mais perto, a %@."},
    {"say.closest.blue.format", "Azul está mais perto, a %@."},
    {"say.closest.both.format", "Vermelho e Azul à mesma distância: %@."},
    {"say.red.format", "Vermelho a %@."},
    {"say.blue.format", "Azul a %@."},
    {"say.ballsLeft.format", "Bolas restantes: Vermelho %@, Azul %@."},
    {"say.score.format", "Pontos: Vermelho %@, Azul %@."},

    {"say.rest.short.format", "Bola parada, %@ antes do jack."},
    {"say.rest.beyond.format", "Bola parada, %@ depois do jack."},
    {"say.rest.level", "Bola parada, na altura do jack."},
    {"say.rest.left.format", "%@ à esquerda dele."},
    {"say.rest.right.format", "%@ à direita dele."},
    {"say.rest.out", "A bola está fora."},
});

} // namespace vorbel::L10n::spoken
