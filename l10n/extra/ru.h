// Further texts in Russian.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::extra {

inline constexpr auto ru = std::to_array<Text>({
    {"end.equidistant.format", "Равноудалённые мячи! Красные +%@, Синие +%@."},
    {"hud.tournament.format", "%@ %@/%@ · %@ (%@)"},
    {"about.pages", "Страницы игры"},
    {"notice.endedBadly.format",
     "В прошлый раз игра неожиданно завершилась. Что об этом известно, записано в файле:\n%@"},

    {"page.boccia.title", "Что такое бочча"},
    {"page.boccia.text",
     "Бочча — спорт точных бросков, с 1984 года входит в программу Паралимпийских игр. В неё играют сидя в "
     "коляске спортсмены с тяжёлыми нарушениями. У каждой стороны шесть мячей, красных или синих: их нужно "
     "положить как можно ближе к белому мячу — кону."},
    {"page.licence", "Лицензия"},
});

} // namespace vorbel::L10n::extra
