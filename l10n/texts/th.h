// Thai texts.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::texts {

inline constexpr auto th = std::to_array<Text>({
    {"team.red", "ฝ่ายแดง"},
    {"team.blue", "ฝ่ายน้ำเงิน"},
    {"team.red.caps", "ฝ่ายแดง"},
    {"team.blue.caps", "ฝ่ายน้ำเงิน"},

    {"label.score", "คะแนน:"},
    {"label.ballsLeft", "ลูกบอล:"},
    {"label.end", "เอนด์"},

    {"menu.matchResult", "ผลการแข่งขัน"},
    {"menu.nextRound", "รอบถัดไป"},
    {"menu.mainMenu", "เมนูหลัก"},

    {"label.end.format", "เอนด์ที่ %@ จาก 4"},
    {"label.playingAs.format", "ทีมชาติ: %@ · คลาส %@"},
    {"label.rampHint", "ราง: ลูกกลิ้งไปบนพื้น ใช้ [↑][↓] ไม่ได้"},
    {"label.aiDifficulty", "ความยากของ AI"},
    {"label.throwPower", "แรงโยน"},
    {"label.aiToggle", "AI"},

    {"difficulty.easy", "ง่าย"},
    {"difficulty.medium", "ปานกลาง"},
    {"difficulty.hard", "ยาก"},
    {"difficulty.ultra", "ยากสุด"},

    {"menu.language", "ภาษา"},
    {"menu.gameMenu", "เกม"},
    {"menu.toggleFullScreen", "เปิด/ปิดเต็มหน้าจอ"},
    {"menu.rank.format", "ระดับ: %@"},
    {"menu.gamesNext.format", "แข่งแล้ว: %@ นัด · อีก %@ นัดถึงระดับถัดไป"},
    {"menu.gamesMax.format", "แข่งแล้ว: %@ นัด · ถึงระดับสูงสุดแล้ว"},
    {"menu.startGame", "เริ่มเกม"},
    {"menu.tournament", "ทัวร์นาเมนต์"},
    {"menu.rules", "กติกา"},
    {"menu.about", "เกี่ยวกับเกม"},
    {"menu.exit", "ออกจากเกม"},
    {"menu.chooseCountry", "คุณเล่นให้ประเทศใด?"},
    {"menu.play", "เล่น"},
    {"menu.sportClass", "คลาสการแข่งขัน"},
    {"menu.back", "ย้อนกลับ"},
    {"menu.isRealAthlete", "ฉันเป็นนักกีฬาในชีวิตจริง"},
    {"menu.diary", "บันทึกของนักกีฬา"},

    {"diary.totalXP.format", "ค่าประสบการณ์ (XP): %@"},
    {"diary.empty", "ยังไม่มีบันทึก ลองแข่งสักนัดสิ!"},
    {"diary.win", "ชนะ"},
    {"diary.loss", "แพ้"},
    {"diary.draw", "เสมอ"},
    {"diary.entry.format", "%@ (+%@ XP)"},

    {"bc.desc.bc1", "ภาวะสมองพิการ โยนด้วยมือหรือเท้า มีผู้ช่วยได้ — เพื่อยึดรถเข็นให้มั่นคงและส่งลูกบอลให้เท่านั้น"},
    {"bc.desc.bc2", "ภาวะสมองพิการ สมรรถภาพทางกายสูงกว่า BC1 ไม่อนุญาตให้มีผู้ช่วย"},
    {"bc.desc.bc3", "ความบกพร่องรุนแรงที่สุด (ไม่จำกัดการวินิจฉัย) ปล่อยลูกผ่านราง (แรมป์) โดยมีผู้ช่วยสนับสนุนในสนาม"},
    {"bc.desc.bc4",
     "ความบกพร่องทางการเคลื่อนไหวขั้นรุนแรงที่ไม่ได้เกิดจากภาวะสมองพิการ (เช่น โรคกล้ามเนื้อเสื่อม) ไม่ใช้รางและไม่มีผู้ช่วย"},

    {"rank.novice", "มือใหม่"},
    {"rank.thirdYouth", "นักกีฬาเยาวชนชั้น 3"},
    {"rank.secondYouth", "นักกีฬาเยาวชนชั้น 2"},
    {"rank.firstYouth", "นักกีฬาเยาวชนชั้น 1"},
    {"rank.thirdRank", "นักกีฬาชั้น 3"},
    {"rank.secondRank", "นักกีฬาชั้น 2"},
    {"rank.firstRank", "นักกีฬาชั้น 1"},
    {"rank.cms", "ว่าที่ปรมาจารย์กีฬา"},
    {"rank.ms", "ปรมาจารย์กีฬา"},

    {"msg.initial", "กด [สเปซบาร์] เพื่อเริ่มเล็ง"},
    {"msg.aimingHint", "ใช้ลูกศร [←][→] และ [↑][↓] เพื่อเล็ง กด [สเปซบาร์] เพื่อตกลง"},
    {"msg.lockPower", "กด [สเปซบาร์] เพื่อล็อกแรงโยน"},
    {"msg.ballInPlay", "ลูกกำลังกลิ้ง..."},
    {"msg.turn.format", "ถึงตา%@ กด [สเปซบาร์] เพื่อเล็ง"},
    {"msg.endWon.format", "%@ชนะเอนด์นี้! คะแนน: %@"},
    {"msg.endDraw", "เอนด์นี้เสมอกัน!"},
    {"msg.matchDraw", "การแข่งขันเสมอกัน!"},
    {"msg.teamWinMatch.format", "%@ชนะการแข่งขัน!"},
    {"msg.matchOver.format", "%@ คะแนน %@:%@ กด [สเปซบาร์] เพื่อเริ่มเกมใหม่"},
    {"msg.nextEndPrompt.format", "%@ กด [สเปซบาร์] เพื่อไปเอนด์ถัดไป"},
    {"msg.newEndStart.format", "เริ่มเอนด์ที่ %@ ถึงตา%@ กด [สเปซบาร์] เพื่อเล็ง"},
    {"msg.jackOut.format", "ลูกแจ็คออกนอกเขต! เปลี่ยนเป็นตา%@ กด [สเปซบาร์] เพื่อเล็ง"},
    {"msg.tieBreak.format", "คะแนนเสมอกัน! เอนด์พิเศษ (เอนด์ที่ %@): วางลูกแจ็คกลางสนาม ถึงตา%@ กด [สเปซบาร์] เพื่อเล็ง"},
    {"msg.aiAiming.format", "AI (%@) กำลังเล็ง..."},
    {"msg.tournamentRound.format", "ทัวร์นาเมนต์รอบที่ %@ จาก %@! คู่แข่ง: %@ (%@) กด [สเปซบาร์] เพื่อเล็ง"},
    {"msg.tournamentEliminated.format", "จบทัวร์นาเมนต์: ตกรอบที่ %@ จาก %@ กด [สเปซบาร์] เพื่อเริ่มเกมใหม่"},
    {"msg.tournamentChampion.format", "แชมป์ทัวร์นาเมนต์! คุณชนะครบทั้ง %@ รอบ! กด [สเปซบาร์] เพื่อเริ่มเกมใหม่"},

    {"country.france", "ฝรั่งเศส"},
    {"country.germany", "เยอรมนี"},
    {"country.thailand", "ไทย"},
    {"country.brazil", "บราซิล"},
    {"country.japan", "ญี่ปุ่น"},
    {"country.southKorea", "เกาหลีใต้"},
    {"country.greatBritain", "สหราชอาณาจักร"},
    {"country.portugal", "โปรตุเกส"},
    {"country.china", "จีน"},
    {"country.belgium", "เบลเยียม"},
    {"country.croatia", "โครเอเชีย"},
    {"country.czechRepublic", "เช็ก"},
    {"country.greece", "กรีซ"},
    {"country.hungary", "ฮังการี"},
    {"country.netherlands", "เนเธอร์แลนด์"},
    {"country.poland", "โปแลนด์"},
    {"country.slovakia", "สโลวาเกีย"},
    {"country.spain", "สเปน"},
    {"country.ukraine", "ยูเครน"},
    {"country.hongKong", "ฮ่องกง"},
    {"country.indonesia", "อินโดนีเซีย"},
    {"country.malaysia", "มาเลเซีย"},
    {"country.singapore", "สิงคโปร์"},
    {"country.israel", "อิสราเอล"},
    {"country.argentina", "อาร์เจนตินา"},
    {"country.bermuda", "เบอร์มิวดา"},
    {"country.canada", "แคนาดา"},
    {"country.colombia", "โคลอมเบีย"},
    {"country.ecuador", "เอกวาดอร์"},
    {"country.elSalvador", "เอลซัลวาดอร์"},
    {"country.mexico", "เม็กซิโก"},
    {"country.peru", "เปรู"},
    {"country.egypt", "อียิปต์"},
    {"country.southAfrica", "แอฟริกาใต้"},
    {"country.tunisia", "ตูนิเซีย"},
    {"country.australia", "ออสเตรเลีย"},
    {"country.russia", "รัสเซีย"},

    {"rules.text",
     "เป้าหมายคือโยนลูกบอลสีให้ใกล้ลูกบอลสีขาว (ลูกแจ็ค) มากที่สุด\n"
     "\n"
     "1. ตัดสินสิทธิ์เริ่มเอนด์: ฝ่ายที่ได้สิทธิ์จะโยนลูกแจ็คสีขาวก่อน แล้วโยนลูกสีลูกแรกของตน\n"
     "2. ฝ่ายที่ลูกของตน “ไม่ได้” อยู่ใกล้ลูกแจ็คที่สุดในขณะนั้น เป็นฝ่ายโยนลูกถัดไป\n"
     "3. แต่ละฝ่ายมีลูกบอล 6 ลูกต่อเอนด์\n"
     "4. เมื่อโยนครบทุกลูก เอนด์นั้นจบลง: ฝ่ายที่มีลูกใกล้ลูกแจ็คกว่าลูกที่ดีที่สุดของคู่แข่ง ได้หนึ่งคะแนนต่อลูกที่ใกล้กว่าแต่ละลูก\n"
     "5. การแข่งขันมี 4 เอนด์ หากแข่งครบแล้วคะแนนเสมอกัน จะแข่งเอนด์พิเศษ โดยผู้ตัดสินวางลูกแจ็คไว้กลางสนามแทนการโยน\n"
     "\n"
     "การควบคุม:\n"
     "[สเปซบาร์] — เริ่มเล็ง / ล็อกมุม / โยน\n"
     "[←] [→] [↑] [↓] — ทิศทางและความสูงของการโยน"},

    {"about.text", "VORBEL\n"
                   "\n"
                   "สร้างโดยทีม VORBEL\n"
                   "เกมบอคเซีย 3 มิติ สร้างด้วย Qt, OpenGL, Bullet และ SDL\n"
                   "\n"
                   "ผลงานอื่นของทีม VORBEL:\n"
                   "· vorbel-sim — โปรแกรมจำลองการแข่งขัน: คู่แข่งคอมพิวเตอร์แข่งกันจนจบโดยไม่ใช้กราฟิก\n"
                   "· ซอร์สโค้ดของ VORBEL — เขียนไว้ให้อ่าน สำหรับผู้เล่นที่อยากรู้ว่าเกมทำงานอย่างไร"},
});

} // namespace vorbel::L10n::texts
