// What is spoken, in Japanese. A quantity has one form.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::spoken {

inline constexpr auto ja = std::to_array<Text>({
    {"number.decimalPoint", "."},
    {"unit.degrees.format", "%@度"},
    {"unit.centimetres.format", "%@センチ"},
    {"unit.metres.format", "%@メートル"},

    {"say.angle.left.format", "角度は左へ%@。"},
    {"say.angle.right.format", "角度は右へ%@。"},
    {"say.angle.ahead", "正面。"},
    {"say.pitch.format", "上向き%@。"},
    {"say.power.format", "パワー%@パーセント。"},

    {"say.jack.left.format", "ジャックボールまで%@、左に%@。"},
    {"say.jack.right.format", "ジャックボールまで%@、右に%@。"},
    {"say.jack.ahead.format", "ジャックボールまで%@、正面。"},
    {"say.jack.none", "コートにジャックボールはありません。"},

    {"say.closest.red.format", "一番近いのは赤、%@。"},
    {"say.closest.blue.format", "一番近いのは青、%@。"},
    {"say.closest.both.format", "赤と青は同じ近さで、%@。"},
    {"say.red.format", "赤は%@。"},
    {"say.blue.format", "青は%@。"},
    {"say.ballsLeft.format", "残りのボールは、赤%@球、青%@球。"},
    {"say.score.format", "得点は、赤%@点、青%@点。"},

    {"say.rest.short.format", "ボールが止まりました。ジャックボールより%@手前。"},
    {"say.rest.beyond.format", "ボールが止まりました。ジャックボールより%@奥。"},
    {"say.rest.level", "ボールが止まりました。ジャックボールと横並び。"},
    {"say.rest.left.format", "ジャックボールの左へ%@。"},
    {"say.rest.right.format", "ジャックボールの右へ%@。"},
    {"say.rest.out", "ボールがアウトになりました。"},
});

} // namespace vorbel::L10n::spoken
