// Further texts in Korean.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::extra {

inline constexpr auto ko = std::to_array<Text>({
    {"end.equidistant.format", "같은 거리입니다! 홍팀 +%@, 청팀 +%@."},
    {"hud.tournament.format", "%@ %@(총 %@라운드) · %@(%@)"},
    {"about.pages", "게임 안내 페이지"},
    {"notice.endedBadly.format",
     "지난번에 게임이 예기치 않게 종료되었습니다. 알려진 내용은 다음 파일에 있습니다.\n%@"},

    {"page.boccia.title", "보치아란?"},
    {"page.boccia.text", "보치아는 정확성을 겨루는 스포츠로, 1984년부터 패럴림픽 정식 종목입니다. 중증 "
                         "장애가 있는 선수들이 휠체어에 앉아 경기합니다. 빨간 공과 파란 공을 여섯 개씩 "
                         "나누어 던져 흰색 표적구에 더 가까이 붙이는 쪽이 점수를 얻습니다."},
    {"page.licence", "라이선스"},
});

} // namespace vorbel::L10n::extra
