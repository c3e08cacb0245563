// What is spoken, in Korean. A quantity has one form.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::spoken {

inline constexpr auto ko = std::to_array<Text>({
    {"number.decimalPoint", "."},
    {"unit.degrees.format", "%@도"},
    {"unit.centimetres.format", "%@센티미터"},
    {"unit.metres.format", "%@미터"},

    {"say.angle.left.format", "각도는 왼쪽으로 %@."},
    {"say.angle.right.format", "각도는 오른쪽으로 %@."},
    {"say.angle.ahead", "정면."},
    {"say.pitch.format", "위쪽으로 %@."},
    {"say.power.format", "세기 %@퍼센트."},

    {"say.jack.left.format", "표적구까지 %@, 왼쪽으로 %@."},
    {"say.jack.right.format", "표적구까지 %@, 오른쪽으로 %@."},
    {"say.jack.ahead.format", "표적구까지 %@, 정면."},
    {"say.jack.none", "경기장에 표적구가 없습니다."},

    {"say.closest.red.format", "홍팀이 가장 가깝습니다. %@."},
    {"say.closest.blue.format", "청팀이 가장 가깝습니다. %@."},
    {"say.closest.both.format", "홍팀과 청팀의 거리가 같습니다. %@."},
    {"say.red.format", "홍팀 %@."},
    {"say.blue.format", "청팀 %@."},
    {"say.ballsLeft.format", "남은 공은 홍팀 %@개, 청팀 %@개."},
    {"say.score.format", "점수는 홍팀 %@점, 청팀 %@점."},

    {"say.rest.short.format", "공이 멈췄습니다. 표적구에 %@ 못 미쳤습니다."},
    {"say.rest.beyond.format", "공이 멈췄습니다. 표적구를 %@ 지났습니다."},
    {"say.rest.level", "공이 멈췄습니다. 표적구와 나란합니다."},
    {"say.rest.left.format", "표적구 왼쪽으로 %@."},
    {"say.rest.right.format", "표적구 오른쪽으로 %@."},
    {"say.rest.out", "공이 나갔습니다."},
});

} // namespace vorbel::L10n::spoken
