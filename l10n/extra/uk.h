// Further texts in Ukrainian.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::extra {

inline constexpr auto uk = std::to_array<Text>({
    {"end.equidistant.format", "М’ячі на однаковій відстані! Червоні +%@, Сині +%@."},
    {"hud.tournament.format", "%@ %@/%@ · %@ (%@)"},
    {"about.pages", "Сторінки гри"},
    {"notice.endedBadly.format",
     "Минулого разу гра несподівано завершилася. Що про це відомо, записано у файлі:\n%@"},

    {"page.boccia.title", "Що таке бочча?"},
    {"page.boccia.text",
     "Бочча — спорт точних кидків, із 1984 року входить до програми Паралімпійських ігор. У неї грають "
     "сидячи у візку спортсмени з тяжкими порушеннями. Кожна сторона має шість м’ячів, червоних або синіх, і "
     "намагається покласти їх якнайближче до білого м’яча — джека."},
    {"page.licence", "Ліцензія"},
});

} // namespace vorbel::L10n::extra
