// Further texts in Polish.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::extra {

inline constexpr auto pl = std::to_array<Text>({
    {"end.equidistant.format", "Bile w równej odległości! Czerwoni +%@, Niebiescy +%@."},
    {"hud.tournament.format", "%@ %@/%@ · %@ (%@)"},
    {"about.pages", "Strony gry"},
    {"notice.endedBadly.format",
     "Poprzednim razem gra nieoczekiwanie się zamknęła. To, co o tym wiadomo, jest w tym pliku:\n%@"},

    {"page.boccia.title", "Co to jest boccia?"},
    {"page.boccia.text", "Boccia to sport precyzyjny, paraolimpijski od 1984 roku, który osoby z ciężkimi "
                         "niepełnosprawnościami uprawiają na wózkach. Każda drużyna ma sześć bil, czerwonych "
                         "lub niebieskich, i stara się umieścić je jak najbliżej białej bili (jacka)."},
    {"page.licence", "Licencja"},
});

} // namespace vorbel::L10n::extra
