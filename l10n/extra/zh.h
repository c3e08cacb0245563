// Further texts in Chinese.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::extra {

inline constexpr auto zh = std::to_array<Text>({
    {"end.equidistant.format", "距离相等！红方+%@，蓝方+%@。"},
    {"hud.tournament.format", "%@ %@（共%@轮） · %@（%@）"},
    {"about.pages", "游戏网页"},
    {"notice.endedBadly.format", "上次游戏意外退出。相关记录在此文件中：\n%@"},

    {"page.boccia.title", "什么是硬地滚球？"},
    {"page.boccia.text", "硬地滚球是一项讲求精准的运动，1984年成为残奥会项目，由重度障碍的运动员坐在轮椅上进"
                         "行。双方各有六个球，一方红色，一方蓝色，要让球尽可能靠近白色的目标球。"},
    {"page.licence", "许可证"},
});

} // namespace vorbel::L10n::extra
