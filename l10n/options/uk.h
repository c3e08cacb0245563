// The options in Ukrainian.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::options {

inline constexpr auto uk = std::to_array<Text>({
    {"menu.options", "Налаштування"},

    {"options.throw", "Кидок"},
    {"options.powerPace", "Шкала сили кидка"},
    {"options.powerPace.help",
     "Перед кидком сила змінюється повільніше або чекає, доки ви задасте її стрілками."},
    {"options.asUsual", "Як звичайно"},
    {"options.byKeys", "Стрілками"},
    {"options.fineAim", "Точний приціл і крок назад"},
    {"options.fineAim.help",
     "Із Shift стрілки рухають приціл дрібними кроками. Backspace повертає до вибору сили, потім прицілу."},

    {"options.oneSwitch", "Одна кнопка"},
    {"options.switchOn", "Грати однією кнопкою"},
    {"options.switchOn.help", "Варіанти змінюються самі; вибір — одне натискання клавіші, кнопки або миші."},
    {"options.switchPace", "Час на кожен варіант"},
    {"options.switchPace.help", "Скільки секунд кожен варіант чекає на натискання."},
    {"options.switchAsks", "Питати перед кидком"},
    {"options.switchAsks.help", "Перед кидком можна прицілитися ще раз."},
    {"options.switchRest", "Пауза після натискання"},
    {"options.switchRest.help", "Повторне натискання протягом цього часу не зараховується."},
    {"options.switchKey", "Ще одна клавіша"},
    {"options.switchKey.help", "Додаткова клавіша замість кнопки: виберіть цей пункт і натисніть її."},
    {"options.pressKey", "Натисніть клавішу…"},
    {"options.none", "Не вибрано"},
    {"options.seconds.format", "%@ с"},

    {"options.devices", "Миша й контролер"},
    {"options.courtButtons", "Кнопки на майданчику"},
    {"options.courtButtons.help", "Великі кнопки скраю майданчика: приціл, кидок, крок назад."},
    {"options.controller", "Контролер"},
    {"options.controller.help", "Цілитися, кидати й вибирати можна контролером або виносними кнопками."},

    {"options.voice", "Голос і сигнали"},
    {"options.speech", "Озвучення"},
    {"options.speech.help", "Повідомлення, приціл і розташування м’ячів звучать уголос. Клавіша W повторює."},
    {"aim.everything", "Де що лежить"},
    {"options.tones", "Звуковий приціл"},
    {"options.tones.help", "Тон вищає разом із силою та зміщується зліва направо разом із кутом."},
    {"options.hitPlaces", "Удари у стерео"},
    {"options.hitPlaces.help", "Удар чути з того боку майданчика, де зіткнулися м’ячі."},

    {"options.sight", "Зір"},
    {"options.ballMarks", "Позначки на м’ячах"},
    {"options.ballMarks.help", "На червоних м’ячах кільця, на синіх — хрестики."},
    {"options.ballOutlines", "Контури м’ячів"},
    {"options.ballOutlines.help", "Лінія навколо м’яча відокремлює його від майданчика."},
    {"options.clearPointer", "Білий вказівник"},
    {"options.clearPointer.help", "Вказівник прицілу білий із чорною облямівкою."},
    {"options.solidPanels", "Непрозорі панелі"},
    {"options.solidPanels.help", "Крізь панелі на екрані нічого не просвічує."},

    {"options.sound", "Звук"},
    {"options.mute", "Без звуку"},
    {"options.mute.help", "Вимикає всі звуки. Те саме робить клавіша M."},
    {"options.crowdVolume", "Гучність трибун"},
    {"options.crowdVolume.help", "Наскільки гучно шумлять глядачі."},
    {"options.effectVolume", "Гучність гри"},
    {"options.effectVolume.help", "Наскільки гучно звучать кидки, удари й підсумки."},
    {"options.soundNotes", "Показувати звуки"},
    {"options.soundNotes.help", "Підпис називає кожен звук, щойно він пролунає."},

    {"options.rest", "Пауза й безпека"},
    {"options.menuPauses", "Меню зупиняє матч"},
    {"options.menuPauses.help", "Поки меню відкрите, матч чекає."},
    {"options.askToLeave", "Питати перед виходом"},
    {"options.askToLeave.help", "Якщо закрити вікно під час матчу, гра спершу перепитає."},

    {"leave.question", "Матч ще не завершено. Усе одно вийти?"},
    {"leave.leave", "Вийти"},
    {"leave.cancel", "Скасувати"},

    {"aim.left", "Ліворуч"},
    {"aim.right", "Праворуч"},
    {"aim.up", "Вгору"},
    {"aim.down", "Вниз"},
    {"aim.ok", "Готово"},
    {"aim.takeBack", "Крок назад"},
    {"aim.powerByKeys", "[↑][↓] — сила кидка. [ПРОБІЛ] — кинути"},

    {"switch.begin", "Натисніть, щоб прицілитися"},
    {"switch.angle", "Натисніть, коли напрямок правильний"},
    {"switch.pitch", "Натисніть, коли висота правильна"},
    {"switch.power", "Натисніть, коли сила правильна"},
    {"switch.throw", "Натисніть, щоб кинути"},
    {"switch.again", "Натисніть, щоб прицілитися ще раз"},
    {"switch.goOn", "Натисніть, щоб продовжити"},
    {"switch.resting", "Натисніть, щоб відновити вибір"},

    {"key.space", "Пробіл"},

    {"controls.title", "Клавіші та кнопки"},
    {"controls.help",
     "Виберіть + і натисніть клавішу або кнопку: до трьох на дію. Щоб прибрати зайву, виберіть її."},
    {"controls.keyboard", "Клавіатура"},
    {"controls.accept", "Приціл, кидок, готово"},
    {"controls.everything", "Де що лежить"},
    {"controls.addKey", "Додати клавішу"},
    {"controls.addButton", "Додати кнопку"},
    {"controls.pressButton", "Натисніть кнопку…"},
    {"controls.moved.format", "%@ — тепер «%@», а не «%@»."},
    {"controls.needed.format", "%@ залишається: дія «%@» більше нічого не має."},
    {"controls.reserved.format", "%@ — клавіша меню."},
    {"controls.reset", "Повернути звичні клавіші"},
    {"button.cross", "Хрест"},
    {"button.circle", "Коло"},
    {"button.square", "Квадрат"},
    {"button.triangle", "Трикутник"},
    {"button.number.format", "Кнопка %@"},

    {"sound.throw", "Кидок"},
    {"sound.hit", "Удар м’яча об м’яч"},
    {"sound.victory", "Радісні вигуки"},
});

} // namespace vorbel::L10n::options
