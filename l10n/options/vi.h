// The options in Vietnamese.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::options {

inline constexpr auto vi = std::to_array<Text>({
    {"menu.options", "Tùy chọn"},

    {"options.throw", "Ném bóng"},
    {"options.powerPace", "Tốc độ chạy của lực ném"},
    {"options.powerPace.help",
     "Lực ném lên xuống chậm hơn trước khi ném, hoặc chờ bạn chỉnh bằng phím mũi tên."},
    {"options.asUsual", "Bình thường"},
    {"options.byKeys", "Chỉnh bằng phím"},
    {"options.fineAim", "Ngắm kỹ và lùi bước"},
    {"options.fineAim.help",
     "Giữ Shift để phím mũi tên ngắm từng chút một. Backspace bỏ lực ném, rồi bỏ góc ngắm."},

    {"options.oneSwitch", "Một công tắc"},
    {"options.switchOn", "Chơi bằng một công tắc"},
    {"options.switchOn.help",
     "Các lựa chọn tự lần lượt đến; chỉ cần một phím, một cú nhấp hay một nút để chọn."},
    {"options.switchPace", "Thời gian mỗi lựa chọn"},
    {"options.switchPace.help", "Mỗi lựa chọn chờ bạn nhấn trong bao lâu."},
    {"options.switchAsks", "Hỏi trước khi ném"},
    {"options.switchAsks.help", "Bạn có thể ngắm lại trước khi thả bóng."},
    {"options.switchRest", "Nghỉ sau mỗi lần nhấn"},
    {"options.switchRest.help", "Nhấn lại trong khoảng thời gian này sẽ không được tính."},
    {"options.switchKey", "Thêm một phím"},
    {"options.switchKey.help", "Một phím nữa dùng làm công tắc: chọn mục này rồi nhấn phím đó."},
    {"options.pressKey", "Nhấn một phím..."},
    {"options.none", "Không có"},
    {"options.seconds.format", "%@ giây"},

    {"options.devices", "Chuột và tay cầm"},
    {"options.courtButtons", "Nút trên sân"},
    {"options.courtButtons.help", "Các nút lớn ở mép sân để ngắm, ném và lùi bước."},
    {"options.controller", "Tay cầm"},
    {"options.controller.help", "Ngắm, ném và chọn bằng tay cầm chơi game hoặc bộ nối công tắc."},

    {"options.voice", "Giọng đọc và âm báo"},
    {"options.speech", "Giọng đọc"},
    {"options.speech.help", "Đọc thông báo, góc ngắm và vị trí các quả bóng. Nhấn phím W để nghe lại."},
    {"aim.everything", "Đọc vị trí"},
    {"options.tones", "Âm báo khi ngắm"},
    {"options.tones.help", "Âm báo cao dần theo lực và chuyển từ trái sang phải theo góc."},

    {"options.sight", "Hiển thị"},
    {"options.ballMarks", "Ký hiệu trên bóng"},
    {"options.ballMarks.help", "Bóng đỏ có vòng tròn, bóng xanh có dấu chéo."},
    {"options.ballOutlines", "Viền quanh bóng"},
    {"options.ballOutlines.help", "Đường viền giúp từng quả bóng nổi rõ trên sân."},
    {"options.clearPointer", "Đường ngắm màu trắng"},
    {"options.clearPointer.help", "Đường ngắm màu trắng, viền đen."},
    {"options.solidPanels", "Bảng không trong suốt"},
    {"options.solidPanels.help", "Các bảng trên màn hình che kín phía sau."},

    {"options.sound", "Âm thanh"},
    {"options.mute", "Tắt tiếng"},
    {"options.mute.help", "Tắt mọi âm thanh. Nhấn phím M cũng được."},
    {"options.crowdVolume", "Âm lượng khán giả"},
    {"options.crowdVolume.help", "Tiếng khán giả to hay nhỏ."},
    {"options.effectVolume", "Âm lượng trò chơi"},
    {"options.effectVolume.help", "Tiếng ném, tiếng va chạm và tiếng báo kết quả to hay nhỏ."},
    {"options.soundNotes", "Hiện tên âm thanh"},
    {"options.soundNotes.help", "Mỗi âm thanh vang lên đều được ghi trên màn hình."},

    {"options.rest", "Nghỉ ngơi và an toàn"},
    {"options.menuPauses", "Mở menu thì dừng trận"},
    {"options.menuPauses.help", "Khi menu đang mở, trận đấu tạm dừng."},
    {"options.askToLeave", "Hỏi trước khi thoát"},
    {"options.askToLeave.help", "Nếu bạn đóng cửa sổ giữa trận, trò chơi sẽ hỏi lại."},

    {"leave.question", "Trận đấu chưa kết thúc. Bạn vẫn muốn thoát?"},
    {"leave.leave", "Thoát"},
    {"leave.cancel", "Hủy"},

    {"aim.left", "Trái"},
    {"aim.right", "Phải"},
    {"aim.up", "Lên"},
    {"aim.down", "Xuống"},
    {"aim.ok", "Xác nhận"},
    {"aim.takeBack", "Lùi bước"},
    {"aim.powerByKeys", "[↑][↓] để chỉnh lực ném. [PHÍM CÁCH] để ném"},

    {"switch.begin", "Nhấn để ngắm"},
    {"switch.angle", "Nhấn khi đúng hướng"},
    {"switch.pitch", "Nhấn khi đúng độ cao"},
    {"switch.power", "Nhấn khi đúng lực"},
    {"switch.throw", "Nhấn để ném"},
    {"switch.again", "Nhấn để ngắm lại"},
    {"switch.goOn", "Nhấn để tiếp tục"},
    {"switch.resting", "Nhấn để chọn tiếp"},

    {"key.space", "Phím cách"},

    {"controls.title", "Phím và nút"},
    {"controls.help",
     "Chọn + rồi nhấn một phím hoặc nút, tối đa ba cho mỗi thao tác. Muốn bỏ cái nào thì chọn cái đó."},
    {"controls.keyboard", "Bàn phím"},
    {"controls.accept", "Ngắm, ném, xác nhận"},
    {"controls.everything", "Vị trí các quả bóng"},
    {"controls.addKey", "Thêm phím"},
    {"controls.addButton", "Thêm nút"},
    {"controls.pressButton", "Nhấn một nút..."},
    {"controls.moved.format", "%@ giờ dùng cho “%@”, không còn cho “%@”."},
    {"controls.needed.format", "%@ giữ nguyên: “%@” không có gì khác."},
    {"controls.reserved.format", "%@ dành cho menu."},
    {"controls.reset", "Khôi phục phím mặc định"},
    {"button.cross", "Dấu chéo"},
    {"button.circle", "Tròn"},
    {"button.square", "Vuông"},
    {"button.triangle", "Tam giác"},
    {"button.number.format", "Nút %@"},

    {"sound.throw", "Tiếng ném"},
    {"sound.hit", "Bóng chạm bóng"},
    {"sound.victory", "Tiếng reo hò"},
});

} // namespace vorbel::L10n::options
