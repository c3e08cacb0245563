// Further texts in Portuguese.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::extra {

inline constexpr auto pt = std::to_array<Text>({
    {"end.equidistant.format", "Bolas equidistantes! Vermelho +%@, Azul +%@."},
    {"hud.tournament.format", "%@ %@/%@ · %@ (%@)"},
    {"about.pages", "As páginas do jogo"},
    {"notice.endedBadly.format",
     "Na última vez, o jogo foi encerrado inesperadamente. O que se sabe está neste arquivo:\n%@"},

    {"page.boccia.title", "O que é a bocha paralímpica?"},
    {"page.boccia.text",
     "A bocha paralímpica, ou boccia, é um esporte de precisão, paralímpico desde 1984, praticado em cadeira "
     "de rodas por atletas com deficiências graves. Cada lado tem seis bolas, vermelhas ou azuis, e tenta "
     "deixá-las o mais perto possível de uma bola branca, o jack."},
    {"page.licence", "Licença"},
});

} // namespace vorbel::L10n::extra
