// Further texts in German.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::extra {

inline constexpr auto de = std::to_array<Text>({
    {"end.equidistant.format", "Gleicher Abstand! Rot +%@, Blau +%@."},
    {"hud.tournament.format", "%@ %@/%@ · %@ (%@)"},
    {"about.pages", "Die Seiten zum Spiel"},
    {"notice.endedBadly.format", "Das Spiel ist beim letzten Mal unerwartet abgebrochen. Was darüber bekannt "
                                 "ist, steht in dieser Datei:\n%@"},

    {"page.boccia.title", "Was ist Boccia?"},
    {"page.boccia.text",
     "Boccia ist ein Präzisionssport, seit 1984 paralympisch, den Menschen mit schweren Beeinträchtigungen "
     "im Rollstuhl ausüben. Jede Seite hat sechs Bälle, rote oder blaue, und versucht, sie möglichst nah an "
     "einen weißen Ball zu bringen, den Jackball."},
    {"page.licence", "Lizenz"},
});

} // namespace vorbel::L10n::extra
