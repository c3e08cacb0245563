// Further texts in English.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::extra {

inline constexpr auto en = std::to_array<Text>({
    {"end.equidistant.format", "Red +%@, Blue +%@"},
    {"hud.tournament.format", "%@ %@/%@ · %@ (%@)"},
    {"about.pages", "The game's pages"},
    {"notice.endedBadly.format",
     "The game ended unexpectedly last time. What is known about it is in this file:\n%@"},

    {"page.boccia.title", "What is boccia?"},
    {"page.boccia.text", "Boccia is a sport of precision, Paralympic since 1984, that athletes with severe "
                         "impairments play from a wheelchair. Each side has six balls, red or blue, and "
                         "tries to bring them closest to a white ball, the jack."},
    {"page.licence", "Licence"},
});

} // namespace vorbel::L10n::extra
