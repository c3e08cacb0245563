// Further texts in Vietnamese.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::extra {

inline constexpr auto vi = std::to_array<Text>({
    {"end.equidistant.format", "Bóng cách đều! Đỏ +%@, Xanh +%@."},
    {"hud.tournament.format", "%@ %@ (trong %@ vòng) · %@ (%@)"},
    {"about.pages", "Trang của trò chơi"},
    {"notice.endedBadly.format",
     "Lần trước trò chơi đã kết thúc đột ngột. Những gì biết được nằm trong tệp này:\n%@"},

    {"page.boccia.title", "Boccia là gì?"},
    {"page.boccia.text", "Boccia là môn thể thao đòi hỏi sự chính xác, có mặt ở Paralympic từ năm 1984, dành "
                         "cho vận động viên khuyết tật nặng thi đấu trên xe lăn. Mỗi đội có sáu quả bóng, đỏ "
                         "hoặc xanh, và cố đưa chúng đến gần bóng đích màu trắng nhất."},
    {"page.licence", "Giấy phép"},
});

} // namespace vorbel::L10n::extra
