// Russian texts. The messages of the match (msg.*) have none here: the game composes its Russian messages
// itself, and with its terms: кон for the jack, энд for the end.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::texts {

inline constexpr auto ru = std::to_array<Text>({
    {"team.red", "Красные"},
    {"team.blue", "Синие"},
    {"team.red.caps", "КРАСНЫЕ"},
    {"team.blue.caps", "СИНИЕ"},

    {"label.score", "Счёт:"},
    {"label.ballsLeft", "Мячи:"},
    {"label.end", "Энд"},

    {"menu.matchResult", "Итог матча"},
    {"menu.nextRound", "Следующий раунд"},
    {"menu.mainMenu", "Главное меню"},

    {"label.end.format", "Энд %@ из 4"},
    {"label.playingAs.format", "Сборная: %@ · Класс %@"},
    {"label.rampHint", "Жёлоб: мяч катится по полу, [↑][↓] отключены"},
    {"label.aiDifficulty", "Сложность ИИ"},
    {"label.throwPower", "Сила броска"},
    {"label.aiToggle", "ИИ"},

    {"difficulty.easy", "Лёгкий"},
    {"difficulty.medium", "Средний"},
    {"difficulty.hard", "Сложный"},
    {"difficulty.ultra", "Ультра"},

    {"menu.language", "Язык"},
    {"menu.gameMenu", "Игра"},
    {"menu.toggleFullScreen", "Полноэкранный режим"},
    {"menu.rank.format", "Ранг: %@"},
    {"menu.gamesNext.format", "Сыграно матчей: %@ · до следующего ранга: %@"},
    {"menu.gamesMax.format", "Сыграно матчей: %@ · достигнут высший ранг"},
    {"menu.startGame", "Начать игру"},
    {"menu.tournament", "Турнир"},
    {"menu.rules", "Правила"},
    {"menu.about", "Об игре"},
    {"menu.exit", "Выход"},
    {"menu.chooseCountry", "За какую страну вы играете?"},
    {"menu.play", "Играть"},
    {"menu.sportClass", "Спортивный класс"},
    {"menu.back", "Назад"},
    {"menu.isRealAthlete", "Я спортсмен в реальной жизни"},
    {"menu.diary", "Дневник спортсмена"},

    {"diary.totalXP.format", "Опыт (XP): %@"},
    {"diary.empty", "Записей пока нет. Сыграйте матч!"},
    {"diary.win", "Победа"},
    {"diary.loss", "Поражение"},
    {"diary.draw", "Ничья"},
    {"diary.entry.format", "%@ (+%@ XP)"},

    {"bc.desc.bc1",
     "Церебральный паралич, бросок рукой или ногой. Ассистент разрешён — только чтобы стабилизировать коляску и подать мяч."},
    {"bc.desc.bc2",
     "Церебральный паралич, функциональные возможности выше, чем в BC1. Ассистент не разрешён."},
    {"bc.desc.bc3",
     "Самые тяжёлые нарушения (любой диагноз), бросок с жёлоба (рампы) при поддержке ассистента на площадке."},
    {"bc.desc.bc4",
     "Тяжёлые двигательные нарушения, не связанные с церебральным параличом (например, мышечная дистрофия). Без жёлоба и без ассистента."},

    {"rank.novice", "Новичок"},
    {"rank.thirdYouth", "3-й юношеский разряд"},
    {"rank.secondYouth", "2-й юношеский разряд"},
    {"rank.firstYouth", "1-й юношеский разряд"},
    {"rank.thirdRank", "3-й спортивный разряд"},
    {"rank.secondRank", "2-й спортивный разряд"},
    {"rank.firstRank", "1-й спортивный разряд"},
    {"rank.cms", "Кандидат в мастера спорта"},
    {"rank.ms", "Мастер спорта"},

    {"country.france", "Франция"},
    {"country.germany", "Германия"},
    {"country.thailand", "Таиланд"},
    {"country.brazil", "Бразилия"},
    {"country.japan", "Япония"},
    {"country.southKorea", "Южная Корея"},
    {"country.greatBritain", "Великобритания"},
    {"country.portugal", "Португалия"},
    {"country.china", "Китай"},
    {"country.belgium", "Бельгия"},
    {"country.croatia", "Хорватия"},
    {"country.czechRepublic", "Чехия"},
    {"country.greece", "Греция"},
    {"country.hungary", "Венгрия"},
    {"country.netherlands", "Нидерланды"},
    {"country.poland", "Польша"},
    {"country.slovakia", "Словакия"},
    {"country.spain", "Испания"},
    {"country.ukraine", "Украина"},
    {"country.hongKong", "Гонконг"},
    {"country.indonesia", "Индонезия"},
    {"country.malaysia", "Малайзия"},
    {"country.singapore", "Сингапур"},
    {"country.israel", "Израиль"},
    {"country.argentina", "Аргентина"},
    {"country.bermuda", "Бермуды"},
    {"country.canada", "Канада"},
    {"country.colombia", "Колумбия"},
    {"country.ecuador", "Эквадор"},
    {"country.elSalvador", "Сальвадор"},
    {"country.mexico", "Мексика"},
    {"country.peru", "Перу"},
    {"country.egypt", "Египет"},
    {"country.southAfrica", "ЮАР"},
    {"country.tunisia", "Тунис"},
    {"country.australia", "Австралия"},
    {"country.russia", "Россия"},

    {"rules.text",
     "Цель — бросать цветные мячи как можно ближе к белому мячу (кону).\n"
     "\n"
     "1. Разыгрывается право начать энд: команда бросает белый кон, затем свой первый цветной мяч.\n"
     "2. Следующей бросает команда, чей мяч сейчас НЕ ближайший к кону.\n"
     "3. У каждой команды 6 мячей на энд.\n"
     "4. Когда все мячи брошены, энд окончен: команда, чьи мячи лежат ближе к кону, чем лучший мяч соперника, получает по одному очку за каждый такой мяч.\n"
     "5. В матче 4 энда. Если после них счёт равный, играется дополнительный энд, и кон не бросают: судья ставит его в центр.\n"
     "\n"
     "Управление:\n"
     "[ПРОБЕЛ] — начать прицеливание / зафиксировать угол / бросить.\n"
     "[←] [→] [↑] [↓] — направление и высота броска."},

    {"about.text",
     "VORBEL\n"
     "\n"
     "Создано командой VORBEL.\n"
     "Трёхмерная игра в бочча, сделанная на Qt, OpenGL, Bullet и SDL.\n"
     "\n"
     "Ещё от создателей VORBEL:\n"
     "· vorbel-sim — симулятор матчей: компьютерные соперники играют целые матчи без графики\n"
     "· исходный код VORBEL — написан так, чтобы его читали все, кому интересно, как это устроено"},
});

} // namespace vorbel::L10n::texts
