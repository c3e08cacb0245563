// What is spoken, in Chinese. A quantity has one form.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::spoken {

inline constexpr auto zh = std::to_array<Text>({
    {"number.decimalPoint", "."},
    {"unit.degrees.format", "%@度"},
    {"unit.centimetres.format", "%@厘米"},
    {"unit.metres.format", "%@米"},

    {"say.angle.left.format", "角度偏左%@。"},
    {"say.angle.right.format", "角度偏右%@。"},
    {"say.angle.ahead", "正前方。"},
    {"say.pitch.format", "仰角%@。"},
    {"say.power.format", "力度百分之%@。"},

    {"say.jack.left.format", "目标球距离%@，偏左%@。"},
    {"say.jack.right.format", "目标球距离%@，偏右%@。"},
    {"say.jack.ahead.format", "目标球在正前方，距离%@。"},
    {"say.jack.none", "场上没有目标球。"},

    {"say.closest.red.format", "红方最近，距目标球%@。"},
    {"say.closest.blue.format", "蓝方最近，距目标球%@。"},
    {"say.closest.both.format", "红方和蓝方一样近，都是%@。"},
    {"say.red.format", "红方%@。"},
    {"say.blue.format", "蓝方%@。"},
    {"say.ballsLeft.format", "剩余球：红方%@个，蓝方%@个。"},
    {"say.score.format", "比分：红方%@，蓝方%@。"},

    {"say.rest.short.format", "球已停下，离目标球还差%@。"},
    {"say.rest.beyond.format", "球已停下，超过目标球%@。"},
    {"say.rest.level", "球已停下，与目标球齐平。"},
    {"say.rest.left.format", "在目标球左边%@。"},
    {"say.rest.right.format", "在目标球右边%@。"},
    {"say.rest.out", "球出界了。"},
});

} // namespace vorbel::L10n::spoken
