// What is spoken, in Vietnamese. A quantity has one form for every number.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::spoken {

inline constexpr auto vi = std::to_array<Text>({
    {"number.decimalPoint", ","},
    {"unit.degrees.format", "%@ độ"},
    {"unit.centimetres.format", "%@ xăng ti mét"},
    {"unit.metres.format", "%@ mét"},

    {"say.angle.left.format", "Góc %@ sang trái."},
    {"say.angle.right.format", "Góc %@ sang phải."},
    {"say.angle.ahead", "Thẳng phía trước."},
    {"say.pitch.format", "Độ cao %@."},
    {"say.power.format", "Lực %@ trên 100."},

    {"say.jack.left.format", "Bóng đích cách %@, lệch trái %@."},
    {"say.jack.right.format", "Bóng đích cách %@, lệch phải %@."},
    {"say.jack.ahead.format", "Bóng đích cách %@, thẳng phía trước."},
    {"say.jack.none", "Không có bóng đích trên sân."},

    {"say.closest.red.format", "Đỏ gần nhất, %@."},
    {"say.closest.blue.format", "Xanh gần nhất, %@."},
    {"say.closest.both.format", "Đỏ và xanh cách đều, %@."},
    {"say.red.format", "Đỏ %@."},
    {"say.blue.format", "Xanh %@."},
    {"say.ballsLeft.format", "Bóng còn lại: đỏ %@, xanh %@."},
    {"say.score.format", "Tỉ số: đỏ %@, xanh %@."},

    {"say.rest.short.format", "Bóng đã dừng, còn thiếu %@ mới tới bóng đích."},
    {"say.rest.beyond.format", "Bóng đã dừng, quá bóng đích %@."},
    {"say.rest.level", "Bóng đã dừng, ngang với bóng đích."},
    {"say.rest.left.format", "Lệch trái %@."},
    {"say.rest.right.format", "Lệch phải %@."},
    {"say.rest.out", "Bóng ra ngoài."},
});

} // namespace vorbel::L10n::spoken
