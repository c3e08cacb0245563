// Further texts in Dutch.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::extra {

inline constexpr auto nl = std::to_array<Text>({
    {"end.equidistant.format", "Ballen op gelijke afstand! Rood +%@, Blauw +%@."},
    {"hud.tournament.format", "%@ %@/%@ · %@ (%@)"},
    {"about.pages", "De pagina’s van het spel"},
    {"notice.endedBadly.format",
     "De vorige keer is het spel onverwacht gestopt. Wat daarover bekend is, staat in dit bestand:\n%@"},

    {"page.boccia.title", "Wat is boccia?"},
    {"page.boccia.text", "Boccia is een precisiesport, paralympisch sinds 1984, die sporters met ernstige "
                         "beperkingen vanuit een rolstoel beoefenen. Elk team heeft zes ballen, rode of "
                         "blauwe, en probeert ze zo dicht mogelijk bij een witte bal te krijgen: de jack."},
    {"page.licence", "Licentie"},
});

} // namespace vorbel::L10n::extra
