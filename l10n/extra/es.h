// Further texts in Spanish.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::extra {

inline constexpr auto es = std::to_array<Text>({
    {"end.equidistant.format", "¡Bolas equidistantes! Rojo +%@, Azul +%@."},
    {"hud.tournament.format", "%@ %@/%@ · %@ (%@)"},
    {"about.pages", "Las páginas del juego"},
    {"notice.endedBadly.format",
     "La última vez el juego terminó de forma inesperada. Lo que se sabe está en este archivo:\n%@"},

    {"page.boccia.title", "¿Qué es la boccia?"},
    {"page.boccia.text",
     "La boccia es un deporte de precisión, paralímpico desde 1984, que practican en silla de ruedas "
     "deportistas con deficiencias graves. Cada equipo tiene seis bolas, rojas o azules, e intenta dejarlas "
     "lo más cerca posible de una bola blanca, el jack."},
    {"page.licence", "Licencia"},
});

} // namespace vorbel::L10n::extra
