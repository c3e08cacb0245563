// Vietnamese texts.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::texts {

inline constexpr auto vi = std::to_array<Text>({
    {"team.red", "Đỏ"},
    {"team.blue", "Xanh"},
    {"team.red.caps", "ĐỎ"},
    {"team.blue.caps", "XANH"},

    {"label.score", "Điểm:"},
    {"label.ballsLeft", "Bóng:"},
    {"label.end", "Hiệp"},

    {"menu.matchResult", "Kết quả trận đấu"},
    {"menu.nextRound", "Vòng tiếp theo"},
    {"menu.mainMenu", "Menu chính"},

    {"label.end.format", "Hiệp %@ (trong 4 hiệp)"},
    {"label.playingAs.format", "Đội tuyển: %@ · Hạng %@"},
    {"label.rampHint", "Máng: bóng lăn trên mặt sân, [↑][↓] bị tắt"},
    {"label.aiDifficulty", "Độ khó của máy"},
    {"label.throwPower", "Lực ném"},
    {"label.aiToggle", "Máy"},

    {"difficulty.easy", "Dễ"},
    {"difficulty.medium", "Vừa"},
    {"difficulty.hard", "Khó"},
    {"difficulty.ultra", "Cực khó"},

    {"menu.language", "Ngôn ngữ"},
    {"menu.gameMenu", "Trò chơi"},
    {"menu.toggleFullScreen", "Bật/tắt toàn màn hình"},
    {"menu.rank.format", "Đẳng cấp: %@"},
    {"menu.gamesNext.format", "Đã đấu %@ trận · còn %@ trận để lên cấp"},
    {"menu.gamesMax.format", "Đã đấu %@ trận · đã đạt đẳng cấp cao nhất"},
    {"menu.startGame", "Bắt đầu chơi"},
    {"menu.tournament", "Giải đấu"},
    {"menu.rules", "Luật chơi"},
    {"menu.about", "Giới thiệu"},
    {"menu.exit", "Thoát"},
    {"menu.chooseCountry", "Bạn thi đấu cho quốc gia nào?"},
    {"menu.play", "Chơi"},
    {"menu.sportClass", "Hạng thương tật"},
    {"menu.back", "Quay lại"},
    {"menu.isRealAthlete", "Tôi là vận động viên ngoài đời"},
    {"menu.diary", "Nhật ký vận động viên"},

    {"diary.totalXP.format", "Kinh nghiệm (XP): %@"},
    {"diary.empty", "Chưa có ghi chép nào. Hãy đấu một trận!"},
    {"diary.win", "Thắng"},
    {"diary.loss", "Thua"},
    {"diary.draw", "Hòa"},
    {"diary.entry.format", "%@ (+%@ XP)"},

    {"bc.desc.bc1",
     "Bại não, ném bằng tay hoặc chân. Được phép có trợ lý — chỉ để giữ vững xe lăn và đưa bóng."},
    {"bc.desc.bc2", "Bại não, mức độ chức năng cao hơn BC1. Không được phép có trợ lý."},
    {"bc.desc.bc3",
     "Khuyết tật nặng nhất (mọi chẩn đoán), ném bằng máng dẫn bóng với sự hỗ trợ của trợ lý trên sân."},
    {"bc.desc.bc4",
     "Khuyết tật vận động nặng không do bại não (ví dụ: loạn dưỡng cơ). Không dùng máng và không có trợ lý."},

    {"rank.novice", "Tân binh"},
    {"rank.thirdYouth", "Cấp III trẻ"},
    {"rank.secondYouth", "Cấp II trẻ"},
    {"rank.firstYouth", "Cấp I trẻ"},
    {"rank.thirdRank", "Cấp III"},
    {"rank.secondRank", "Cấp II"},
    {"rank.firstRank", "Cấp I"},
    {"rank.cms", "Dự bị kiện tướng"},
    {"rank.ms", "Kiện tướng"},

    {"msg.initial", "Nhấn [PHÍM CÁCH] để bắt đầu ngắm"},
    {"msg.aimingHint", "Mũi tên [←][→] và [↑][↓] để ngắm. [PHÍM CÁCH] - xác nhận."},
    {"msg.lockPower", "[PHÍM CÁCH] Chốt lực ném"},
    {"msg.ballInPlay", "Bóng đang lăn..."},
    {"msg.turn.format", "Lượt của đội %@. [PHÍM CÁCH] để ngắm"},
    {"msg.endWon.format", "Đội %@ thắng hiệp! Điểm: %@."},
    {"msg.endDraw", "Hiệp đấu hòa!"},
    {"msg.matchDraw", "Trận đấu hòa!"},
    {"msg.teamWinMatch.format", "Đội %@ thắng trận!"},
    {"msg.matchOver.format", "%@ Tỉ số %@-%@. [PHÍM CÁCH] để chơi ván mới"},
    {"msg.nextEndPrompt.format", "%@ [PHÍM CÁCH] để sang hiệp sau"},
    {"msg.newEndStart.format", "Hiệp %@ bắt đầu. Lượt của đội %@. [PHÍM CÁCH] để ngắm"},
    {"msg.jackOut.format", "Bóng đích ra ngoài! Lượt chuyển cho đội %@. [PHÍM CÁCH] để ngắm"},
    {"msg.tieBreak.format",
     "Hai đội hòa! Hiệp phụ (hiệp %@): bóng đích đặt ở giữa sân. Lượt của đội %@. [PHÍM CÁCH] để ngắm"},
    {"msg.aiAiming.format", "Máy (%@) đang ngắm..."},
    {"msg.tournamentRound.format",
     "Giải đấu, vòng %@ (trong %@ vòng)! Đối thủ: %@ (%@). [PHÍM CÁCH] để ngắm"},
    {"msg.tournamentEliminated.format",
     "Giải đấu kết thúc: bị loại ở vòng %@ (trong %@ vòng). [PHÍM CÁCH] để chơi ván mới"},
    {"msg.tournamentChampion.format",
     "VÔ ĐỊCH GIẢI ĐẤU! Bạn đã thắng cả %@ vòng! [PHÍM CÁCH] để chơi ván mới"},

    {"country.france", "Pháp"},
    {"country.germany", "Đức"},
    {"country.thailand", "Thái Lan"},
    {"country.brazil", "Brazil"},
    {"country.japan", "Nhật Bản"},
    {"country.southKorea", "Hàn Quốc"},
    {"country.greatBritain", "Vương quốc Anh"},
    {"country.portugal", "Bồ Đào Nha"},
    {"country.china", "Trung Quốc"},
    {"country.belgium", "Bỉ"},
    {"country.croatia", "Croatia"},
    {"country.czechRepublic", "Séc"},
    {"country.greece", "Hy Lạp"},
    {"country.hungary", "Hungary"},
    {"country.netherlands", "Hà Lan"},
    {"country.poland", "Ba Lan"},
    {"country.slovakia", "Slovakia"},
    {"country.spain", "Tây Ban Nha"},
    {"country.ukraine", "Ukraine"},
    {"country.hongKong", "Hồng Kông"},
    {"country.indonesia", "Indonesia"},
    {"country.malaysia", "Malaysia"},
    {"country.singapore", "Singapore"},
    {"country.israel", "Israel"},
    {"country.argentina", "Argentina"},
    {"country.bermuda", "Bermuda"},
    {"country.canada", "Canada"},
    {"country.colombia", "Colombia"},
    {"country.ecuador", "Ecuador"},
    {"country.elSalvador", "El Salvador"},
    {"country.mexico", "Mexico"},
    {"country.peru", "Peru"},
    {"country.egypt", "Ai Cập"},
    {"country.southAfrica", "Nam Phi"},
    {"country.tunisia", "Tunisia"},
    {"country.australia", "Úc"},
    {"country.russia", "Nga"},

    {"rules.text",
     "Mục tiêu là ném các quả bóng màu càng gần quả bóng trắng (bóng đích) càng tốt.\n"
     "\n"
     "1. Xác định quyền mở đầu hiệp: một đội ném bóng đích màu trắng, rồi ném quả bóng màu đầu tiên của mình.\n"
     "2. Đội hiện KHÔNG có bóng gần bóng đích nhất sẽ ném tiếp theo.\n"
     "3. Mỗi đội có 6 quả bóng trong một hiệp.\n"
     "4. Khi đã ném hết bóng, hiệp đấu kết thúc: đội có bóng gần bóng đích hơn quả tốt nhất của đối thủ được một điểm cho mỗi quả như vậy.\n"
     "5. Một trận có 4 hiệp. Nếu hết trận mà tỉ số hòa thì đấu hiệp phụ; bóng đích không được ném mà do trọng tài đặt ở giữa sân.\n"
     "\n"
     "Điều khiển:\n"
     "[PHÍM CÁCH] — bắt đầu ngắm / chốt góc ném / ném.\n"
     "[←] [→] [↑] [↓] — hướng và độ cao của cú ném."},

    {"about.text",
     "VORBEL\n"
     "\n"
     "Do nhóm VORBEL thực hiện.\n"
     "Trò chơi boccia 3D làm bằng Qt, OpenGL, Bullet và SDL.\n"
     "\n"
     "Sản phẩm khác của nhóm VORBEL:\n"
     "· vorbel-sim — trình mô phỏng trận đấu: các đối thủ máy đấu trọn trận mà không cần đồ họa\n"
     "· mã nguồn VORBEL — viết ra để đọc, dành cho người chơi muốn biết trò chơi hoạt động thế nào"},
});

} // namespace vorbel::L10n::texts
