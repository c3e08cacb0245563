// Korean texts.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::texts {

inline constexpr auto ko = std::to_array<Text>({
    {"team.red", "홍팀"},
    {"team.blue", "청팀"},
    {"team.red.caps", "홍팀"},
    {"team.blue.caps", "청팀"},

    {"label.score", "점수:"},
    {"label.ballsLeft", "남은 공:"},
    {"label.end", "엔드"},

    {"menu.matchResult", "경기 결과"},
    {"menu.nextRound", "다음 라운드"},
    {"menu.mainMenu", "메인 메뉴"},

    {"label.end.format", "%@엔드 (총 4엔드)"},
    {"label.playingAs.format", "대표팀: %@ · 등급: %@"},
    {"label.rampHint", "홈통: 공이 바닥으로만 구름, [↑][↓] 사용 불가"},
    {"label.aiDifficulty", "AI 난이도"},
    {"label.throwPower", "투구 세기"},
    {"label.aiToggle", "AI"},

    {"difficulty.easy", "쉬움"},
    {"difficulty.medium", "보통"},
    {"difficulty.hard", "어려움"},
    {"difficulty.ultra", "최강"},

    {"menu.language", "언어"},
    {"menu.gameMenu", "게임"},
    {"menu.toggleFullScreen", "전체 화면 전환"},
    {"menu.rank.format", "랭크: %@"},
    {"menu.gamesNext.format", "치른 경기: %@ · 다음 랭크까지: %@"},
    {"menu.gamesMax.format", "치른 경기: %@ · 최고 랭크 달성"},
    {"menu.startGame", "게임 시작"},
    {"menu.tournament", "토너먼트"},
    {"menu.rules", "규칙"},
    {"menu.about", "게임 정보"},
    {"menu.exit", "종료"},
    {"menu.chooseCountry", "어느 나라 대표로 출전하시겠습니까?"},
    {"menu.play", "플레이"},
    {"menu.sportClass", "스포츠 등급"},
    {"menu.back", "뒤로"},
    {"menu.isRealAthlete", "실제로도 운동선수입니다"},
    {"menu.diary", "선수 일지"},

    {"diary.totalXP.format", "경험치(XP): %@"},
    {"diary.empty", "아직 기록이 없습니다. 경기를 해 보세요!"},
    {"diary.win", "승리"},
    {"diary.loss", "패배"},
    {"diary.draw", "무승부"},
    {"diary.entry.format", "%@ (+%@ XP)"},

    {"bc.desc.bc1",
     "뇌성마비. 손이나 발로 투구합니다. 보조자를 둘 수 있으나 휠체어를 고정하고 공을 건네주는 일만 할 수 있습니다."},
    {"bc.desc.bc2", "뇌성마비. BC1보다 신체 기능 수준이 높습니다. 보조자를 둘 수 없습니다."},
    {"bc.desc.bc3",
     "가장 심한 장애(진단명 무관). 경기장 안에서 보조자의 도움을 받아 홈통(램프)으로 투구합니다."},
    {"bc.desc.bc4",
     "뇌성마비가 아닌 원인에 의한 심한 운동 장애(예: 근이영양증). 홈통과 보조자 없이 투구합니다."},

    {"rank.novice", "초보자"},
    {"rank.thirdYouth", "청소년 3급"},
    {"rank.secondYouth", "청소년 2급"},
    {"rank.firstYouth", "청소년 1급"},
    {"rank.thirdRank", "3급"},
    {"rank.secondRank", "2급"},
    {"rank.firstRank", "1급"},
    {"rank.cms", "스포츠 마스터 후보"},
    {"rank.ms", "스포츠 마스터"},

    {"msg.initial", "[스페이스바]를 눌러 조준을 시작하세요"},
    {"msg.aimingHint", "방향키 [←][→]와 [↑][↓]로 조준하세요. [스페이스바] - 확인."},
    {"msg.lockPower", "[스페이스바] 투구 세기 확정"},
    {"msg.ballInPlay", "공이 굴러가는 중..."},
    {"msg.turn.format", "%@ 차례입니다. [스페이스바]로 조준"},
    {"msg.endWon.format", "%@ 엔드 승리! 득점: %@."},
    {"msg.endDraw", "엔드 무승부!"},
    {"msg.matchDraw", "경기 무승부!"},
    {"msg.teamWinMatch.format", "%@ 경기 승리!"},
    {"msg.matchOver.format", "%@ 점수 %@:%@. [스페이스바]로 새 게임 시작"},
    {"msg.nextEndPrompt.format", "%@ [스페이스바]로 다음 엔드 진행"},
    {"msg.newEndStart.format", "%@엔드 시작. %@ 차례입니다. [스페이스바]로 조준"},
    {"msg.jackOut.format", "표적구가 나갔습니다! 다음 차례: %@. [스페이스바]로 조준"},
    {"msg.tieBreak.format",
     "동점입니다! 연장 엔드(%@엔드): 표적구를 경기장 중앙에 놓습니다. %@ 차례입니다. [스페이스바]로 조준"},
    {"msg.aiAiming.format", "AI(%@) 조준 중..."},
    {"msg.tournamentRound.format", "토너먼트 %@라운드(총 %@라운드)! 상대: %@(%@). [스페이스바]로 조준"},
    {"msg.tournamentEliminated.format",
     "토너먼트 종료: %@라운드(총 %@라운드)에서 탈락. [스페이스바]로 새 게임 시작"},
    {"msg.tournamentChampion.format",
     "토너먼트 우승! %@개 라운드를 모두 이겼습니다! [스페이스바]로 새 게임 시작"},

    {"country.france", "프랑스"},
    {"country.germany", "독일"},
    {"country.thailand", "태국"},
    {"country.brazil", "브라질"},
    {"country.japan", "일본"},
    {"country.southKorea", "대한민국"},
    {"country.greatBritain", "영국"},
    {"country.portugal", "포르투갈"},
    {"country.china", "중국"},
    {"country.belgium", "벨기에"},
    {"country.croatia", "크로아티아"},
    {"country.czechRepublic", "체코"},
    {"country.greece", "그리스"},
    {"country.hungary", "헝가리"},
    {"country.netherlands", "네덜란드"},
    {"country.poland", "폴란드"},
    {"country.slovakia", "슬로바키아"},
    {"country.spain", "스페인"},
    {"country.ukraine", "우크라이나"},
    {"country.hongKong", "홍콩"},
    {"country.indonesia", "인도네시아"},
    {"country.malaysia", "말레이시아"},
    {"country.singapore", "싱가포르"},
    {"country.israel", "이스라엘"},
    {"country.argentina", "아르헨티나"},
    {"country.bermuda", "버뮤다"},
    {"country.canada", "캐나다"},
    {"country.colombia", "콜롬비아"},
    {"country.ecuador", "에콰도르"},
    {"country.elSalvador", "엘살바도르"},
    {"country.mexico", "멕시코"},
    {"country.peru", "페루"},
    {"country.egypt", "이집트"},
    {"country.southAfrica", "남아프리카공화국"},
    {"country.tunisia", "튀니지"},
    {"country.australia", "호주"},
    {"country.russia", "러시아"},

    {"rules.text",
     "목표는 색깔 공을 흰색 공(표적구)에 최대한 가깝게 던지는 것입니다.\n"
     "\n"
     "1. 먼저 엔드를 시작할 팀을 정합니다. 그 팀이 흰색 표적구를 던진 다음 자기 팀의 첫 색깔 공을 던집니다.\n"
     "2. 현재 표적구에 가장 가까운 공이 자기 공이 아닌 팀이 다음에 던집니다.\n"
     "3. 각 팀은 엔드마다 공을 6개씩 던집니다.\n"
     "4. 공을 모두 던지면 엔드가 끝납니다. 상대의 가장 좋은 공보다 표적구에 더 가까운 공 하나당 1점을 얻습니다.\n"
     "5. 한 경기는 4엔드입니다. 경기가 끝났을 때 동점이면 연장 엔드를 치르며, 표적구는 던지지 않고 심판이 경기장 중앙에 놓습니다.\n"
     "\n"
     "조작 방법:\n"
     "[스페이스바] — 조준 시작 / 각도 확정 / 투구.\n"
     "[←] [→] [↑] [↓] — 투구 방향과 높이."},

    {"about.text", "VORBEL\n"
                   "\n"
                   "VORBEL 팀이 만들었습니다.\n"
                   "Qt, OpenGL, Bullet, SDL로 만든 3D 보치아 게임입니다.\n"
                   "\n"
                   "VORBEL 팀의 다른 작품:\n"
                   "· vorbel-sim — 경기 시뮬레이터: 컴퓨터 선수들이 그래픽 없이 경기를 끝까지 진행합니다\n"
                   "· VORBEL 소스 코드 — 읽기 좋게 쓴 코드로, 작동 원리가 궁금한 플레이어를 위한 것입니다"},
});

} // namespace vorbel::L10n::texts
