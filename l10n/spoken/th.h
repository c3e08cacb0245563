// What is spoken, in Thai. A quantity has one form.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::spoken {

inline constexpr auto th = std::to_array<Text>({
    {"number.decimalPoint", "."},
    {"unit.degrees.format", "%@ องศา"},
    {"unit.centimetres.format", "%@ เซนติเมตร"},
    {"unit.metres.format", "%@ เมตร"},

    {"say.angle.left.format", "เล็งไปทางซ้าย %@"},
    {"say.angle.right.format", "เล็งไปทางขวา %@"},
    {"say.angle.ahead", "เล็งตรงไปข้างหน้า"},
    {"say.pitch.format", "มุมเงย %@"},
    {"say.power.format", "แรงโยน %@ จาก 100"},

    {"say.jack.left.format", "ลูกแจ็คอยู่ห่าง %@ เยื้องซ้าย %@"},
    {"say.jack.right.format", "ลูกแจ็คอยู่ห่าง %@ เยื้องขวา %@"},
    {"say.jack.ahead.format", "ลูกแจ็คอยู่ตรงหน้า ห่าง %@"},
    {"say.jack.none", "ไม่มีลูกแจ็คในสนาม"},

    {"say.closest.red.format", "ฝ่ายแดงใกล้ที่สุด ห่าง %@"},
    {"say.closest.blue.format", "ฝ่ายน้ำเงินใกล้ที่สุด ห่าง %@"},
    {"say.closest.both.format", "ฝ่ายแดงกับฝ่ายน้ำเงินใกล้เท่ากัน ห่าง %@"},
    {"say.red.format", "ฝ่ายแดงห่าง %@"},
    {"say.blue.format", "ฝ่ายน้ำเงินห่าง %@"},
    {"say.ballsLeft.format", "ฝ่ายแดงเหลือ %@ ลูก ฝ่ายน้ำเงินเหลือ %@ ลูก"},
    {"say.score.format", "คะแนน ฝ่ายแดง %@ ฝ่ายน้ำเงิน %@"},

    {"say.rest.short.format", "ลูกหยุดแล้ว ยังไม่ถึงลูกแจ็ค ขาดอีก %@"},
    {"say.rest.beyond.format", "ลูกหยุดแล้ว เลยลูกแจ็คไป %@"},
    {"say.rest.level", "ลูกหยุดแล้ว ระยะเท่ากับลูกแจ็ค"},
    {"say.rest.left.format", "อยู่ทางซ้ายของลูกแจ็ค %@"},
    {"say.rest.right.format", "อยู่ทางขวาของลูกแจ็ค %@"},
    {"say.rest.out", "ลูกออกนอกเขต"},
});

} // namespace vorbel::L10n::spoken
