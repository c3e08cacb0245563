// Further texts in Thai.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::extra {

inline constexpr auto th = std::to_array<Text>({
    {"end.equidistant.format", "ระยะเท่ากัน! ฝ่ายแดง +%@ ฝ่ายน้ำเงิน +%@"},
    {"hud.tournament.format", "%@ %@/%@ · %@ (%@)"},
    {"about.pages", "หน้าเว็บของเกม"},
    {"notice.endedBadly.format", "ครั้งที่แล้วเกมหยุดทำงานโดยไม่คาดคิด สิ่งที่ทราบอยู่ในไฟล์นี้:\n%@"},

    {"page.boccia.title", "บอคเซียคืออะไร"},
    {"page.boccia.text",
     "บอคเซียเป็นกีฬาที่ใช้ความแม่นยำ บรรจุในพาราลิมปิกตั้งแต่ปี 1984 ผู้เล่นคือนักกีฬาที่มีความบกพร่องรุนแรงซึ่งแข่งขันบนรถเข็น "
     "แต่ละฝ่ายมีลูกบอลหกลูก สีแดงหรือสีน้ำเงิน และพยายามให้อยู่ใกล้ลูกบอลสีขาวหรือลูกแจ็คมากที่สุด"},
    {"page.licence", "สัญญาอนุญาต"},
});

} // namespace vorbel::L10n::extra
