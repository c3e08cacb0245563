// Ukrainian texts.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::texts {

inline constexpr auto uk = std::to_array<Text>({
    {"team.red", "Червоні"},
    {"team.blue", "Сині"},
    {"team.red.caps", "ЧЕРВОНІ"},
    {"team.blue.caps", "СИНІ"},

    {"label.score", "Очки:"},
    {"label.ballsLeft", "М’ячі:"},
    {"label.end", "Енд"},

    {"menu.matchResult", "Результат матчу"},
    {"menu.nextRound", "Наступний раунд"},
    {"menu.mainMenu", "Головне меню"},

    {"label.end.format", "Енд %@ із 4"},
    {"label.playingAs.format", "Збірна: %@ · Клас %@"},
    {"label.rampHint", "Рампа: м’яч котиться по підлозі, [↑][↓] вимкнено"},
    {"label.aiDifficulty", "Складність ШІ"},
    {"label.throwPower", "Сила кидка"},
    {"label.aiToggle", "ШІ"},

    {"difficulty.easy", "Легкий"},
    {"difficulty.medium", "Середній"},
    {"difficulty.hard", "Складний"},
    {"difficulty.ultra", "Ультра"},

    {"menu.language", "Мова"},
    {"menu.gameMenu", "Гра"},
    {"menu.toggleFullScreen", "Повноекранний режим"},
    {"menu.rank.format", "Ранг: %@"},
    {"menu.gamesNext.format", "Зіграно матчів: %@ · до наступного рангу: %@"},
    {"menu.gamesMax.format", "Зіграно матчів: %@ · найвищий ранг"},
    {"menu.startGame", "Почати гру"},
    {"menu.tournament", "Турнір"},
    {"menu.rules", "Правила"},
    {"menu.about", "Про гру"},
    {"menu.exit", "Вийти"},
    {"menu.chooseCountry", "За яку країну ви граєте?"},
    {"menu.play", "Грати"},
    {"menu.sportClass", "Спортивний клас"},
    {"menu.back", "Назад"},
    {"menu.isRealAthlete", "Займаюся спортом у житті"},
    {"menu.diary", "Щоденник спортсмена"},

    {"diary.totalXP.format", "Досвід (XP): %@"},
    {"diary.empty", "Записів ще немає. Зіграйте матч!"},
    {"diary.win", "Перемога"},
    {"diary.loss", "Поразка"},
    {"diary.draw", "Нічия"},
    {"diary.entry.format", "%@ (+%@ XP)"},

    {"bc.desc.bc1",
     "Церебральний параліч, кидок рукою або ногою. Асистент дозволений — лише щоб стабілізувати крісло й подати м’яч."},
    {"bc.desc.bc2",
     "Церебральний параліч, функціональні можливості вищі, ніж у BC1. Асистент не дозволений."},
    {"bc.desc.bc3",
     "Найтяжчі порушення (будь-який діагноз), кидок із рампи (жолоба) за підтримки асистента на майданчику."},
    {"bc.desc.bc4",
     "Тяжкі рухові порушення, не пов’язані з церебральним паралічем (наприклад, м’язова дистрофія). Без рампи й без асистента."},

    {"rank.novice", "Новачок"},
    {"rank.thirdYouth", "3-й юнацький розряд"},
    {"rank.secondYouth", "2-й юнацький розряд"},
    {"rank.firstYouth", "1-й юнацький розряд"},
    {"rank.thirdRank", "3-й спортивний розряд"},
    {"rank.secondRank", "2-й спортивний розряд"},
    {"rank.firstRank", "1-й спортивний розряд"},
    {"rank.cms", "Кандидат у майстри спорту"},
    {"rank.ms", "Майстер спорту"},

    {"msg.initial", "Натисніть [ПРОБІЛ], щоб прицілитися"},
    {"msg.aimingHint", "Прицілюйтеся стрілками [←][→] і [↑][↓]. [ПРОБІЛ] — готово."},
    {"msg.lockPower", "[ПРОБІЛ] Зафіксувати силу кидка"},
    {"msg.ballInPlay", "М’яч у грі…"},
    {"msg.turn.format", "Кидають %@. [ПРОБІЛ] — прицілитися"},
    {"msg.endWon.format", "%@ виграли енд! Очки: %@."},
    {"msg.endDraw", "Нічия в енді!"},
    {"msg.matchDraw", "Нічия в матчі!"},
    {"msg.teamWinMatch.format", "%@ виграли матч!"},
    {"msg.matchOver.format", "%@ Рахунок %@:%@. [ПРОБІЛ] — нова гра"},
    {"msg.nextEndPrompt.format", "%@ [ПРОБІЛ] — наступний енд"},
    {"msg.newEndStart.format", "Енд %@ розпочато. Кидають %@. [ПРОБІЛ] — прицілитися"},
    {"msg.jackOut.format", "Джек поза грою! Тепер кидають %@. [ПРОБІЛ] — прицілитися"},
    {"msg.tieBreak.format",
     "Нічия в матчі! Додатковий енд %@: джек поставлено в центр. Кидають %@. [ПРОБІЛ] — прицілитися"},
    {"msg.aiAiming.format", "ШІ (%@) прицілюється…"},
    {"msg.tournamentRound.format", "Турнір, раунд %@ із %@! Суперник: %@ (%@). [ПРОБІЛ] — прицілитися"},
    {"msg.tournamentEliminated.format", "Турнір завершено: виліт у раунді %@ із %@. [ПРОБІЛ] — нова гра"},
    {"msg.tournamentChampion.format", "ПЕРЕМОГА В ТУРНІРІ! Ви виграли всі раунди (%@)! [ПРОБІЛ] — нова гра"},

    {"country.france", "Франція"},
    {"country.germany", "Німеччина"},
    {"country.thailand", "Таїланд"},
    {"country.brazil", "Бразилія"},
    {"country.japan", "Японія"},
    {"country.southKorea", "Південна Корея"},
    {"country.greatBritain", "Велика Британія"},
    {"country.portugal", "Португалія"},
    {"country.china", "Китай"},
    {"country.belgium", "Бельгія"},
    {"country.croatia", "Хорватія"},
    {"country.czechRepublic", "Чехія"},
    {"country.greece", "Греція"},
    {"country.hungary", "Угорщина"},
    {"country.netherlands", "Нідерланди"},
    {"country.poland", "Польща"},
    {"country.slovakia", "Словаччина"},
    {"country.spain", "Іспанія"},
    {"country.ukraine", "Україна"},
    {"country.hongKong", "Гонконг"},
    {"country.indonesia", "Індонезія"},
    {"country.malaysia", "Малайзія"},
    {"country.singapore", "Сінгапур"},
    {"country.israel", "Ізраїль"},
    {"country.argentina", "Аргентина"},
    {"country.bermuda", "Бермуди"},
    {"country.canada", "Канада"},
    {"country.colombia", "Колумбія"},
    {"country.ecuador", "Еквадор"},
    {"country.elSalvador", "Сальвадор"},
    {"country.mexico", "Мексика"},
    {"country.peru", "Перу"},
    {"country.egypt", "Єгипет"},
    {"country.southAfrica", "ПАР"},
    {"country.tunisia", "Туніс"},
    {"country.australia", "Австралія"},
    {"country.russia", "Росія"},

    {"rules.text",
     "Мета — кидати кольорові м’ячі якомога ближче до білого м’яча (джека).\n"
     "\n"
     "1. Спершу розігрується право почати енд: команда кидає білий джек, а потім свій перший кольоровий м’яч.\n"
     "2. Наступною кидає команда, чий м’яч зараз НЕ найближчий до джека.\n"
     "3. Кожна команда має 6 м’ячів на енд.\n"
     "4. Коли всі м’ячі кинуто, енд завершено: команда, чиї м’ячі лежать ближче до джека, ніж найкращий м’яч суперника, отримує по одному очку за кожен такий м’яч.\n"
     "5. У матчі 4 енди. Якщо після них рахунок рівний, грають додатковий енд, і джек не кидають: суддя ставить його в центр.\n"
     "\n"
     "Керування:\n"
     "[ПРОБІЛ] — почати прицілювання / зафіксувати кут / кинути.\n"
     "[←] [→] [↑] [↓] — напрямок і висота кидка."},

    {"about.text", "VORBEL\n"
                   "\n"
                   "Створено командою VORBEL.\n"
                   "Тривимірна гра в боччу, створена на Qt, OpenGL, Bullet і SDL.\n"
                   "\n"
                   "Також від авторів VORBEL:\n"
                   "· vorbel-sim — симулятор матчів: комп’ютерні суперники грають цілі матчі без графіки\n"
                   "· вихідний код VORBEL — написаний, щоб його читали всі, кому цікаво, як це влаштовано"},
});

} // namespace vorbel::L10n::texts
