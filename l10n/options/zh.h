// The options in Chinese.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::options {

inline constexpr auto zh = std::to_array<Text>({
    {"menu.options", "选项"},

    {"options.throw", "投球"},
    {"options.powerPace", "力度变化速度"},
    {"options.powerPace.help", "投球前力度变化得更慢，或改用方向键自行设定。"},
    {"options.asUsual", "正常"},
    {"options.byKeys", "用按键设定"},
    {"options.fineAim", "微调与撤回"},
    {"options.fineAim.help", "按住Shift键，方向键每次只移动一小步。按[退格]键先撤回力度，再撤回瞄准。"},

    {"options.oneSwitch", "单开关操作"},
    {"options.switchOn", "用一个开关玩游戏"},
    {"options.switchOn.help", "选项自动逐个轮换，只需一个按键、一次点击或一个手柄按钮即可选定。"},
    {"options.switchPace", "每项停留时间"},
    {"options.switchPace.help", "每个选项停留多久等你选定。"},
    {"options.switchAsks", "投球前询问"},
    {"options.switchAsks.help", "球出手前，可以选择重新瞄准。"},
    {"options.switchRest", "按下后的间隔"},
    {"options.switchRest.help", "在这段时间内再次按下不算数。"},
    {"options.switchKey", "再加一个按键"},
    {"options.switchKey.help", "另设一个键作为开关：选择此项，然后按下那个键。"},
    {"options.pressKey", "请按一个键……"},
    {"options.none", "无"},
    {"options.seconds.format", "%@秒"},

    {"options.devices", "鼠标与手柄"},
    {"options.courtButtons", "场边按钮"},
    {"options.courtButtons.help", "用场地边缘的大按钮瞄准、投球和撤回。"},
    {"options.controller", "手柄"},
    {"options.controller.help", "用游戏手柄或开关接口瞄准、投球和选择。"},

    {"options.voice", "语音与提示音"},
    {"options.speech", "语音播报"},
    {"options.speech.help", "播报消息、瞄准情况和各球位置。按[W]键可重听。"},
    {"aim.everything", "播报位置"},
    {"options.tones", "瞄准提示音"},
    {"options.tones.help", "力度越大音调越高，声音随角度左右移动。"},
    {"options.hitPlaces", "碰撞立体声"},
    {"options.hitPlaces.help", "碰撞声从球相碰的那一侧传来。"},

    {"options.sight", "视觉"},
    {"options.textSize", "文字大小"},
    {"options.textSize.help", "所有文字的大小。"},
    {"options.ballMarks", "球上标记"},
    {"options.ballMarks.help", "红球带圆环，蓝球带十字。"},
    {"options.ballOutlines", "球的轮廓线"},
    {"options.ballOutlines.help", "给每个球描边，与场地分得更清楚。"},
    {"options.clearPointer", "白色指针"},
    {"options.clearPointer.help", "瞄准指针显示为白色黑边。"},
    {"options.solidPanels", "不透明面板"},
    {"options.solidPanels.help", "面板后面的画面不再透出来。"},

    {"options.sound", "声音"},
    {"options.mute", "静音"},
    {"options.mute.help", "关闭所有声音。按[M]键也可以。"},
    {"options.crowdVolume", "观众音量"},
    {"options.crowdVolume.help", "观众声音的大小。"},
    {"options.effectVolume", "比赛音量"},
    {"options.effectVolume.help", "投球、碰撞和结果音效的大小。"},
    {"options.soundNotes", "显示声音"},
    {"options.soundNotes.help", "每次响起声音时，用文字注明是什么声音。"},

    {"options.rest", "暂停与退出"},
    {"options.menuPauses", "打开菜单时暂停比赛"},
    {"options.menuPauses.help", "菜单打开期间，比赛会停下来等你。"},
    {"options.askToLeave", "退出前询问"},
    {"options.askToLeave.help", "比赛中关闭窗口时，先询问是否退出。"},

    {"leave.question", "比赛还没结束，确定要退出吗？"},
    {"leave.leave", "退出"},
    {"leave.cancel", "取消"},

    {"aim.left", "左"},
    {"aim.right", "右"},
    {"aim.up", "上"},
    {"aim.down", "下"},
    {"aim.ok", "确认"},
    {"aim.takeBack", "撤回"},
    {"aim.powerByKeys", "[↑][↓]调节力度。[空格]投球"},

    {"switch.begin", "按一下开始瞄准"},
    {"switch.angle", "方向合适时按一下"},
    {"switch.pitch", "高度合适时按一下"},
    {"switch.power", "力度合适时按一下"},
    {"switch.throw", "按一下投球"},
    {"switch.again", "按一下重新瞄准"},
    {"switch.goOn", "按一下继续"},
    {"switch.resting", "按一下，选项继续轮换"},

    {"key.space", "空格"},

    {"controls.title", "按键与按钮"},
    {"controls.help", "选择+，再按一个键或手柄按钮，每个动作最多三个。选择已有的即可移除。"},
    {"controls.keyboard", "键盘"},
    {"controls.accept", "瞄准、投球、确认"},
    {"controls.everything", "各球位置"},
    {"controls.addKey", "添加按键"},
    {"controls.addButton", "添加按钮"},
    {"controls.pressButton", "请按一个按钮……"},
    {"controls.moved.format", "%@现在用于“%@”，不再用于“%@”。"},
    {"controls.needed.format", "%@保留：“%@”没有别的可用。"},
    {"controls.reserved.format", "%@留给菜单使用。"},
    {"controls.reset", "恢复默认按键"},
    {"button.cross", "叉"},
    {"button.circle", "圆圈"},
    {"button.square", "方块"},
    {"button.triangle", "三角"},
    {"button.number.format", "按钮%@"},

    {"sound.throw", "投球声"},
    {"sound.hit", "球碰球声"},
    {"sound.victory", "欢呼声"},
});

} // namespace vorbel::L10n::options
