// Further texts in French.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::extra {

inline constexpr auto fr = std::to_array<Text>({
    {"end.equidistant.format", "Balles à égale distance ! Rouge +%@, Bleu +%@."},
    {"hud.tournament.format", "%@ %@/%@ · %@ (%@)"},
    {"about.pages", "Les pages du jeu"},
    {"notice.endedBadly.format", "La dernière fois, le jeu s’est arrêté de façon inattendue. Ce que l’on en "
                                 "sait se trouve dans ce fichier :\n%@"},

    {"page.boccia.title", "Qu’est-ce que la boccia ?"},
    {"page.boccia.text",
     "La boccia est un sport de précision, paralympique depuis 1984, que des athlètes ayant des atteintes "
     "sévères pratiquent en fauteuil roulant. Chaque camp dispose de six balles, rouges ou bleues, et "
     "cherche à les placer au plus près d’une balle blanche, le jack."},
    {"page.licence", "Licence"},
});

} // namespace vorbel::L10n::extra
