// Simplified Chinese texts.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::texts {

inline constexpr auto zh = std::to_array<Text>({
    {"team.red", "红方"},
    {"team.blue", "蓝方"},
    {"team.red.caps", "红方"},
    {"team.blue.caps", "蓝方"},

    {"label.score", "得分："},
    {"label.ballsLeft", "剩余球："},
    {"label.end", "局"},

    {"menu.matchResult", "比赛结果"},
    {"menu.nextRound", "下一轮"},
    {"menu.mainMenu", "主菜单"},

    {"label.end.format", "第%@局（共4局）"},
    {"label.playingAs.format", "代表队：%@ · 级别：%@"},
    {"label.rampHint", "滑槽：球贴地滚动，[↑][↓]不可用"},
    {"label.aiDifficulty", "电脑难度"},
    {"label.throwPower", "投球力度"},
    {"label.aiToggle", "电脑"},

    {"difficulty.easy", "简单"},
    {"difficulty.medium", "中等"},
    {"difficulty.hard", "困难"},
    {"difficulty.ultra", "极难"},

    {"menu.language", "语言"},
    {"menu.gameMenu", "游戏"},
    {"menu.toggleFullScreen", "切换全屏"},
    {"menu.rank.format", "等级：%@"},
    {"menu.gamesNext.format", "已赛%@场 · 再赛%@场升级"},
    {"menu.gamesMax.format", "已赛%@场 · 已达最高等级"},
    {"menu.startGame", "开始游戏"},
    {"menu.tournament", "锦标赛"},
    {"menu.rules", "规则"},
    {"menu.about", "关于游戏"},
    {"menu.exit", "退出"},
    {"menu.chooseCountry", "你代表哪个国家或地区出战？"},
    {"menu.play", "开始比赛"},
    {"menu.sportClass", "运动级别"},
    {"menu.back", "返回"},
    {"menu.isRealAthlete", "我是现实中的运动员"},
    {"menu.diary", "运动员日记"},

    {"diary.totalXP.format", "经验值（XP）：%@"},
    {"diary.empty", "暂无记录。来打一场比赛吧！"},
    {"diary.win", "胜"},
    {"diary.loss", "负"},
    {"diary.draw", "平"},
    {"diary.entry.format", "%@（+%@ XP）"},

    {"bc.desc.bc1", "脑性瘫痪，用手或脚投球。允许配备助手——仅限于稳定轮椅和递球。"},
    {"bc.desc.bc2", "脑性瘫痪，功能水平高于BC1。不允许配备助手。"},
    {"bc.desc.bc3", "障碍程度最重（不限病因），在场上助手的协助下使用滑槽（斜道）投球。"},
    {"bc.desc.bc4", "非脑性瘫痪所致的重度运动功能障碍（如肌营养不良）。不使用滑槽，也不配备助手。"},

    {"rank.novice", "新手"},
    {"rank.thirdYouth", "少年三级运动员"},
    {"rank.secondYouth", "少年二级运动员"},
    {"rank.firstYouth", "少年一级运动员"},
    {"rank.thirdRank", "三级运动员"},
    {"rank.secondRank", "二级运动员"},
    {"rank.firstRank", "一级运动员"},
    {"rank.cms", "候补运动健将"},
    {"rank.ms", "运动健将"},

    {"msg.initial", "按[空格]开始瞄准"},
    {"msg.aimingHint", "用方向键[←][→]和[↑][↓]瞄准。[空格]确认。"},
    {"msg.lockPower", "[空格]锁定投球力度"},
    {"msg.ballInPlay", "球在滚动中……"},
    {"msg.turn.format", "轮到%@投球。[空格]瞄准"},
    {"msg.endWon.format", "%@赢得本局！得分：%@。"},
    {"msg.endDraw", "本局战平！"},
    {"msg.matchDraw", "全场战平！"},
    {"msg.teamWinMatch.format", "%@赢得比赛！"},
    {"msg.matchOver.format", "%@比分%@:%@。[空格]开始新游戏"},
    {"msg.nextEndPrompt.format", "%@ [空格]进入下一局"},
    {"msg.newEndStart.format", "第%@局开始。轮到%@投球。[空格]瞄准"},
    {"msg.jackOut.format", "目标球出界！投球权转给%@。[空格]瞄准"},
    {"msg.tieBreak.format", "比赛打平！加赛局（第%@局）：目标球置于场地中心。轮到%@投球。[空格]瞄准"},
    {"msg.aiAiming.format", "电脑（%@）正在瞄准……"},
    {"msg.tournamentRound.format", "锦标赛第%@轮（共%@轮）！对手：%@（%@）。[空格]瞄准"},
    {"msg.tournamentEliminated.format", "锦标赛结束：止步第%@轮（共%@轮）。[空格]开始新游戏"},
    {"msg.tournamentChampion.format", "锦标赛冠军！你赢下了全部%@轮！[空格]开始新游戏"},

    {"country.france", "法国"},
    {"country.germany", "德国"},
    {"country.thailand", "泰国"},
    {"country.brazil", "巴西"},
    {"country.japan", "日本"},
    {"country.southKorea", "韩国"},
    {"country.greatBritain", "英国"},
    {"country.portugal", "葡萄牙"},
    {"country.china", "中国"},
    {"country.belgium", "比利时"},
    {"country.croatia", "克罗地亚"},
    {"country.czechRepublic", "捷克"},
    {"country.greece", "希腊"},
    {"country.hungary", "匈牙利"},
    {"country.netherlands", "荷兰"},
    {"country.poland", "波兰"},
    {"country.slovakia", "斯洛伐克"},
    {"country.spain", "西班牙"},
    {"country.ukraine", "乌克兰"},
    {"country.hongKong", "中国香港"},
    {"country.indonesia", "印度尼西亚"},
    {"country.malaysia", "马来西亚"},
    {"country.singapore", "新加坡"},
    {"country.israel", "以色列"},
    {"country.argentina", "阿根廷"},
    {"country.bermuda", "百慕大"},
    {"country.canada", "加拿大"},
    {"country.colombia", "哥伦比亚"},
    {"country.ecuador", "厄瓜多尔"},
    {"country.elSalvador", "萨尔瓦多"},
    {"country.mexico", "墨西哥"},
    {"country.peru", "秘鲁"},
    {"country.egypt", "埃及"},
    {"country.southAfrica", "南非"},
    {"country.tunisia", "突尼斯"},
    {"country.australia", "澳大利亚"},
    {"country.russia", "俄罗斯"},

    {"rules.text",
     "比赛的目标是把彩色球投得尽可能靠近白球（目标球）。\n"
     "\n"
     "1. 先确定由哪一方开局：该方先投出白色目标球，再投出己方的第一个彩色球。\n"
     "2. 接下来，由己方的球当前并非最靠近目标球的一方投球。\n"
     "3. 每局双方各有6个球。\n"
     "4. 所有球投完后，本局结束：一方每有一个球比对方最好的球更靠近目标球，就得1分。\n"
     "5. 一场比赛共4局。若4局过后比分相同，则进行加赛局，目标球不再投出，而由裁判员放在场地中心。\n"
     "\n"
     "操作：\n"
     "[空格]——开始瞄准 / 锁定角度 / 投球。\n"
     "[←] [→] [↑] [↓]——投球的方向和高度。"},

    {"about.text", "VORBEL\n"
                   "\n"
                   "由VORBEL团队制作。\n"
                   "一款3D硬地滚球游戏，使用Qt、OpenGL、Bullet和SDL开发。\n"
                   "\n"
                   "VORBEL团队的其他作品：\n"
                   "· vorbel-sim——比赛模拟器：电脑对手打完整场比赛，无需图形界面\n"
                   "· VORBEL源代码——为便于阅读而写，献给想了解其运作方式的玩家"},
});

} // namespace vorbel::L10n::texts
