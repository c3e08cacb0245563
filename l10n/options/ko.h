// The options in Korean.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::options {

inline constexpr auto ko = std::to_array<Text>({
    {"menu.options", "옵션"},

    {"options.throw", "투구"},
    {"options.powerPace", "세기가 변하는 속도"},
    {"options.powerPace.help", "투구 전에 세기가 더 천천히 변하거나, 방향키로 직접 정할 수 있습니다."},
    {"options.asUsual", "기본"},
    {"options.byKeys", "키로 설정"},
    {"options.fineAim", "정밀 조준과 되돌리기"},
    {"options.fineAim.help",
     "Shift 키를 누른 채 방향키로 조금씩 조준합니다. 백스페이스 키는 세기, 조준 순으로 되돌립니다."},

    {"options.oneSwitch", "스위치 하나로 조작"},
    {"options.switchOn", "스위치 하나로 플레이"},
    {"options.switchOn.help", "선택 항목이 저절로 차례차례 바뀌며, 키나 클릭, 버튼 하나로 고릅니다."},
    {"options.switchPace", "항목별 대기 시간"},
    {"options.switchPace.help", "각 항목이 선택을 기다리는 시간입니다."},
    {"options.switchAsks", "투구 전 확인"},
    {"options.switchAsks.help", "공을 놓기 전에 다시 조준할 수 있게 합니다."},
    {"options.switchRest", "누른 뒤 쉬는 시간"},
    {"options.switchRest.help", "이 시간 안에 다시 누르면 무시합니다."},
    {"options.switchKey", "스위치 키 추가"},
    {"options.switchKey.help", "스위치로 쓸 키를 추가합니다. 이 항목을 고른 다음 키를 누르세요."},
    {"options.pressKey", "키를 누르세요..."},
    {"options.none", "없음"},
    {"options.seconds.format", "%@초"},

    {"options.devices", "마우스와 컨트롤러"},
    {"options.courtButtons", "경기장 버튼"},
    {"options.courtButtons.help", "경기장 가장자리의 큰 버튼으로 조준하고 던지고 되돌립니다."},
    {"options.controller", "컨트롤러"},
    {"options.controller.help", "게임 컨트롤러나 스위치 인터페이스로 조준하고 던지고 선택합니다."},

    {"options.voice", "음성과 신호음"},
    {"options.speech", "음성 안내"},
    {"options.speech.help", "메시지, 조준 상태, 공의 위치를 읽어 줍니다. W 키를 누르면 다시 들려줍니다."},
    {"aim.everything", "위치 듣기"},
    {"options.tones", "조준 신호음"},
    {"options.tones.help", "세기가 커지면 음이 높아지고, 각도에 따라 소리가 좌우로 움직입니다."},
    {"options.hitPlaces", "충돌음 스테레오"},
    {"options.hitPlaces.help", "공이 부딪친 쪽에서 소리가 들립니다."},

    {"options.sight", "시각"},
    {"options.ballMarks", "공 무늬"},
    {"options.ballMarks.help", "빨간 공에는 고리, 파란 공에는 십자 무늬가 생깁니다."},
    {"options.ballOutlines", "공 테두리"},
    {"options.ballOutlines.help", "공마다 테두리를 그려 바닥과 잘 구분되게 합니다."},
    {"options.clearPointer", "흰색 포인터"},
    {"options.clearPointer.help", "조준 포인터가 검은 테두리를 두른 흰색이 됩니다."},
    {"options.solidPanels", "불투명 패널"},
    {"options.solidPanels.help", "화면 패널 뒤가 비치지 않습니다."},

    {"options.sound", "소리"},
    {"options.mute", "음소거"},
    {"options.mute.help", "모든 소리를 끕니다. M 키로도 끌 수 있습니다."},
    {"options.crowdVolume", "관중 음량"},
    {"options.crowdVolume.help", "관중 소리의 크기입니다."},
    {"options.effectVolume", "게임 음량"},
    {"options.effectVolume.help", "투구, 충돌, 결과 소리의 크기입니다."},
    {"options.soundNotes", "소리 자막"},
    {"options.soundNotes.help", "소리가 날 때마다 무슨 소리인지 글로 알려 줍니다."},

    {"options.rest", "일시 정지와 종료"},
    {"options.menuPauses", "메뉴를 열면 경기 멈춤"},
    {"options.menuPauses.help", "메뉴가 열려 있는 동안 경기가 멈춥니다."},
    {"options.askToLeave", "나가기 전 확인"},
    {"options.askToLeave.help", "경기 중에 창을 닫으려 하면 먼저 묻습니다."},

    {"leave.question", "경기가 아직 끝나지 않았습니다. 그래도 나가시겠습니까?"},
    {"leave.leave", "나가기"},
    {"leave.cancel", "취소"},

    {"aim.left", "왼쪽"},
    {"aim.right", "오른쪽"},
    {"aim.up", "위"},
    {"aim.down", "아래"},
    {"aim.ok", "확인"},
    {"aim.takeBack", "되돌리기"},
    {"aim.powerByKeys", "[↑][↓]로 세기 조절. [스페이스바]로 투구"},

    {"switch.begin", "누르면 조준을 시작합니다"},
    {"switch.angle", "방향이 맞을 때 누르세요"},
    {"switch.pitch", "높이가 맞을 때 누르세요"},
    {"switch.power", "세기가 맞을 때 누르세요"},
    {"switch.throw", "누르면 던집니다"},
    {"switch.again", "누르면 다시 조준합니다"},
    {"switch.goOn", "누르면 계속합니다"},
    {"switch.resting", "누르면 선택을 다시 시작합니다"},

    {"key.space", "스페이스바"},

    {"controls.title", "키와 버튼"},
    {"controls.help",
     "+를 고른 다음 키나 버튼을 누르세요. 동작마다 세 개까지입니다. 빼려면 그것을 고르세요."},
    {"controls.keyboard", "키보드"},
    {"controls.accept", "조준, 투구, 확인"},
    {"controls.everything", "공들의 위치"},
    {"controls.addKey", "키 추가"},
    {"controls.addButton", "버튼 추가"},
    {"controls.pressButton", "버튼을 누르세요..."},
    {"controls.moved.format", "%@: 이제 ‘%@’에 쓰이고 ‘%@’에는 쓰이지 않습니다."},
    {"controls.needed.format", "%@: 뺄 수 없습니다. ‘%@’에 다른 것이 없습니다."},
    {"controls.reserved.format", "%@: 메뉴에서 쓰는 키입니다."},
    {"controls.reset", "기본 키로 되돌리기"},
    {"button.cross", "엑스"},
    {"button.circle", "동그라미"},
    {"button.square", "네모"},
    {"button.triangle", "세모"},
    {"button.number.format", "버튼 %@"},

    {"sound.throw", "투구 소리"},
    {"sound.hit", "공끼리 부딪치는 소리"},
    {"sound.victory", "환호성"},
});

} // namespace vorbel::L10n::options
