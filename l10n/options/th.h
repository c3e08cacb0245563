// The options in Thai.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::options {

inline constexpr auto th = std::to_array<Text>({
    {"menu.options", "ตัวเลือก"},

    {"options.throw", "การโยน"},
    {"options.powerPace", "จังหวะของแรงโยน"},
    {"options.powerPace.help", "ให้แรงโยนขึ้นลงช้าลงก่อนโยน หรือใช้ปุ่มลูกศรกำหนดแรงเอง"},
    {"options.asUsual", "ปกติ"},
    {"options.byKeys", "กำหนดด้วยปุ่มลูกศร"},
    {"options.fineAim", "เล็งละเอียดและเลิกทำ"},
    {"options.fineAim.help",
     "กด Shift ค้างไว้แล้วใช้ลูกศรเพื่อเล็งทีละน้อย กด [Backspace] เพื่อเลิกทำแรงโยน แล้วตามด้วยการเล็ง"},

    {"options.oneSwitch", "สวิตช์เดียว"},
    {"options.switchOn", "เล่นด้วยสวิตช์เดียว"},
    {"options.switchOn.help", "ตัวเลือกจะเลื่อนไปเองทีละรายการ กดปุ่มหรือคลิกเพียงครั้งเดียวเพื่อเลือก"},
    {"options.switchPace", "เวลาต่อตัวเลือก"},
    {"options.switchPace.help", "แต่ละตัวเลือกจะรอให้กดนานเท่าใด"},
    {"options.switchAsks", "ถามก่อนโยน"},
    {"options.switchAsks.help", "ให้เลือกเล็งใหม่ได้ก่อนปล่อยลูก"},
    {"options.switchRest", "เวลาพักหลังกด"},
    {"options.switchRest.help", "หากกดซ้ำภายในเวลานี้จะไม่นับ"},
    {"options.switchKey", "เพิ่มปุ่มสวิตช์"},
    {"options.switchKey.help", "เพิ่มอีกปุ่มเพื่อใช้เป็นสวิตช์: เลือกรายการนี้ แล้วกดปุ่มที่ต้องการ"},
    {"options.pressKey", "กดปุ่มที่ต้องการ..."},
    {"options.none", "ไม่มี"},
    {"options.seconds.format", "%@ วินาที"},

    {"options.devices", "เมาส์และคอนโทรลเลอร์"},
    {"options.courtButtons", "ปุ่มบนสนาม"},
    {"options.courtButtons.help", "ปุ่มขนาดใหญ่ริมสนามสำหรับเล็ง โยน และเลิกทำ"},
    {"options.controller", "คอนโทรลเลอร์"},
    {"options.controller.help", "ใช้คอนโทรลเลอร์เกมหรืออุปกรณ์ต่อสวิตช์เพื่อเล็ง โยน และเลือก"},

    {"options.voice", "เสียงพูดและเสียงสัญญาณ"},
    {"options.speech", "เสียงพูด"},
    {"options.speech.help", "อ่านข้อความ การเล็ง และตำแหน่งของลูกให้ฟัง กด [W] เพื่อฟังอีกครั้ง"},
    {"aim.everything", "บอกตำแหน่ง"},
    {"options.tones", "เสียงสัญญาณช่วยเล็ง"},
    {"options.tones.help", "เสียงสูงขึ้นตามแรงโยน และเลื่อนซ้ายขวาตามมุม"},
    {"options.hitPlaces", "เสียงกระทบแบบสเตอริโอ"},
    {"options.hitPlaces.help", "ได้ยินเสียงกระทบจากฝั่งของสนามที่ลูกชนกัน"},

    {"options.sight", "การมองเห็น"},
    {"options.textSize", "ขนาดตัวอักษร"},
    {"options.textSize.help", "ขนาดของข้อความทั้งหมด"},
    {"options.ballMarks", "เครื่องหมายบนลูกบอล"},
    {"options.ballMarks.help", "ลูกสีแดงมีวงแหวน ลูกสีน้ำเงินมีกากบาท"},
    {"options.ballOutlines", "เส้นขอบลูกบอล"},
    {"options.ballOutlines.help", "มีเส้นรอบลูกบอลแต่ละลูกให้เด่นจากพื้นสนาม"},
    {"options.clearPointer", "ตัวชี้สีขาว"},
    {"options.clearPointer.help", "ตัวชี้สำหรับเล็งเป็นสีขาวขอบดำ"},
    {"options.solidPanels", "แผงทึบ"},
    {"options.solidPanels.help", "มองไม่เห็นฉากหลังผ่านแผงบนหน้าจอ"},

    {"options.sound", "เสียง"},
    {"options.mute", "ปิดเสียง"},
    {"options.mute.help", "ปิดเสียงทั้งหมด กด [M] ก็ได้เช่นกัน"},
    {"options.crowdVolume", "ระดับเสียงผู้ชม"},
    {"options.crowdVolume.help", "เสียงของผู้ชมดังแค่ไหน"},
    {"options.effectVolume", "ระดับเสียงเกม"},
    {"options.effectVolume.help", "เสียงโยน เสียงกระทบ และเสียงแจ้งผลดังแค่ไหน"},
    {"options.soundNotes", "แสดงเสียงเป็นข้อความ"},
    {"options.soundNotes.help", "มีข้อความบอกว่าเสียงที่ดังขึ้นคือเสียงอะไร"},

    {"options.rest", "การหยุดพักและการออก"},
    {"options.menuPauses", "เปิดเมนูแล้วหยุดเกม"},
    {"options.menuPauses.help", "ระหว่างที่เปิดเมนูอยู่ การแข่งขันจะหยุดรอ"},
    {"options.askToLeave", "ถามก่อนออก"},
    {"options.askToLeave.help", "ถ้าปิดหน้าต่างระหว่างแข่ง จะถามยืนยันก่อน"},

    {"leave.question", "การแข่งขันยังไม่จบ ต้องการออกหรือไม่?"},
    {"leave.leave", "ออก"},
    {"leave.cancel", "ยกเลิก"},

    {"aim.left", "ซ้าย"},
    {"aim.right", "ขวา"},
    {"aim.up", "ขึ้น"},
    {"aim.down", "ลง"},
    {"aim.ok", "ตกลง"},
    {"aim.takeBack", "เลิกทำ"},
    {"aim.powerByKeys", "[↑][↓] ปรับแรงโยน กด [สเปซบาร์] เพื่อโยน"},

    {"switch.begin", "กดเพื่อเริ่มเล็ง"},
    {"switch.angle", "กดเมื่อทิศทางพอดี"},
    {"switch.pitch", "กดเมื่อความสูงพอดี"},
    {"switch.power", "กดเมื่อแรงพอดี"},
    {"switch.throw", "กดเพื่อโยน"},
    {"switch.again", "กดเพื่อเล็งใหม่"},
    {"switch.goOn", "กดเพื่อไปต่อ"},
    {"switch.resting", "กดเพื่อให้ตัวเลือกเลื่อนต่อ"},

    {"key.space", "สเปซบาร์"},

    {"controls.title", "การตั้งค่าปุ่ม"},
    {"controls.help", "เลือก + แล้วกดปุ่มบนแป้นพิมพ์หรือคอนโทรลเลอร์ ไม่เกินสามปุ่มต่อคำสั่ง เลือกปุ่มที่มีอยู่เพื่อเอาออก"},
    {"controls.keyboard", "แป้นพิมพ์"},
    {"controls.accept", "เล็ง โยน ตกลง"},
    {"controls.everything", "ตำแหน่งของลูกทั้งหมด"},
    {"controls.addKey", "เพิ่มปุ่มแป้นพิมพ์"},
    {"controls.addButton", "เพิ่มปุ่มคอนโทรลเลอร์"},
    {"controls.pressButton", "กดปุ่มบนคอนโทรลเลอร์..."},
    {"controls.moved.format", "%@ ใช้สำหรับ “%@” แล้ว ไม่ใช่ “%@” อีกต่อไป"},
    {"controls.needed.format", "%@ ยังอยู่ เพราะ “%@” ไม่มีปุ่มอื่น"},
    {"controls.reserved.format", "%@ เป็นปุ่มของเมนู"},
    {"controls.reset", "คืนค่าปุ่มเดิม"},
    {"button.cross", "กากบาท"},
    {"button.circle", "วงกลม"},
    {"button.square", "สี่เหลี่ยม"},
    {"button.triangle", "สามเหลี่ยม"},
    {"button.number.format", "ปุ่ม %@"},

    {"sound.throw", "เสียงโยน"},
    {"sound.hit", "เสียงลูกกระทบกัน"},
    {"sound.victory", "เสียงเชียร์"},
});

} // namespace vorbel::L10n::options
