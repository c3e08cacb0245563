// Further texts in Italian.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::extra {

inline constexpr auto it = std::to_array<Text>({
    {"end.equidistant.format", "Bocce equidistanti! Rosso +%@, Blu +%@."},
    {"hud.tournament.format", "%@ %@/%@ · %@ (%@)"},
    {"about.pages", "Le pagine del gioco"},
    {"notice.endedBadly.format",
     "L’ultima volta il gioco si è chiuso in modo imprevisto. Quello che se ne sa è in questo file:\n%@"},

    {"page.boccia.title", "Che cos’è la boccia?"},
    {"page.boccia.text", "La boccia è uno sport di precisione, paralimpico dal 1984, praticato in carrozzina "
                         "da atleti con gravi disabilità. Ogni squadra ha sei bocce, rosse o blu, e cerca di "
                         "portarle il più vicino possibile a una boccia bianca, il jack."},
    {"page.licence", "Licenza"},
});

} // namespace vorbel::L10n::extra
