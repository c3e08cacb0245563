// The options in Russian.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::options {

inline constexpr auto ru = std::to_array<Text>({
    {"menu.options", "Настройки"},

    {"options.throw", "Бросок"},
    {"options.powerPace", "Шкала силы броска"},
    {"options.powerPace.help",
     "Перед броском сила меняется медленнее или ждёт, пока вы зададите её стрелками."},
    {"options.asUsual", "Как обычно"},
    {"options.byKeys", "Стрелками"},
    {"options.fineAim", "Точный прицел и шаг назад"},
    {"options.fineAim.help",
     "С Shift стрелки двигают прицел мелкими шагами. Backspace возвращает к выбору силы, затем прицела."},

    {"options.oneSwitch", "Одна кнопка"},
    {"options.switchOn", "Играть одной кнопкой"},
    {"options.switchOn.help", "Варианты сменяются сами; выбор — одно нажатие клавиши, кнопки или мыши."},
    {"options.switchPace", "Время на каждый вариант"},
    {"options.switchPace.help", "Сколько секунд каждый вариант ждёт нажатия."},
    {"options.switchAsks", "Спрашивать перед броском"},
    {"options.switchAsks.help", "Перед броском можно прицелиться заново."},
    {"options.switchRest", "Пауза после нажатия"},
    {"options.switchRest.help", "Повторное нажатие в течение этого времени не засчитывается."},
    {"options.switchKey", "Ещё одна клавиша"},
    {"options.switchKey.help", "Дополнительная клавиша вместо кнопки: выберите этот пункт и нажмите её."},
    {"options.pressKey", "Нажмите клавишу…"},
    {"options.none", "Не выбрано"},
    {"options.seconds.format", "%@ с"},

    {"options.devices", "Мышь и контроллер"},
    {"options.courtButtons", "Кнопки на площадке"},
    {"options.courtButtons.help", "Большие кнопки у края площадки: прицел, бросок, шаг назад."},
    {"options.controller", "Контроллер"},
    {"options.controller.help", "Целиться, бросать и выбирать можно контроллером или выносными кнопками."},

    {"options.voice", "Голос и сигналы"},
    {"options.speech", "Озвучивание"},
    {"options.speech.help", "Сообщения, прицел и положение мячей звучат вслух. Клавиша W повторяет."},
    {"aim.everything", "Где что лежит"},
    {"options.tones", "Звуковой прицел"},
    {"options.tones.help", "Тон повышается вместе с силой и смещается слева направо вместе с углом."},
    {"options.hitPlaces", "Удары в стерео"},
    {"options.hitPlaces.help", "Удар слышен с той стороны площадки, где столкнулись мячи."},

    {"options.sight", "Зрение"},
    {"options.ballMarks", "Метки на мячах"},
    {"options.ballMarks.help", "На красных мячах кольца, на синих — крестики."},
    {"options.ballOutlines", "Контуры мячей"},
    {"options.ballOutlines.help", "Линия вокруг мяча отделяет его от площадки."},
    {"options.clearPointer", "Белый указатель"},
    {"options.clearPointer.help", "Указатель прицела белый с чёрной каймой."},
    {"options.solidPanels", "Непрозрачные панели"},
    {"options.solidPanels.help", "Сквозь панели на экране ничего не просвечивает."},

    {"options.sound", "Звук"},
    {"options.mute", "Без звука"},
    {"options.mute.help", "Отключает все звуки. То же делает клавиша M."},
    {"options.crowdVolume", "Громкость трибун"},
    {"options.crowdVolume.help", "Насколько громко шумят зрители."},
    {"options.effectVolume", "Громкость игры"},
    {"options.effectVolume.help", "Насколько громко звучат броски, удары и итоги."},
    {"options.soundNotes", "Показывать звуки"},
    {"options.soundNotes.help", "Подпись называет каждый звук, как только он раздаётся."},

    {"options.rest", "Пауза и безопасность"},
    {"options.menuPauses", "Меню останавливает матч"},
    {"options.menuPauses.help", "Пока меню открыто, матч ждёт."},
    {"options.askToLeave", "Спрашивать перед выходом"},
    {"options.askToLeave.help", "Если закрыть окно во время матча, игра сначала переспросит."},

    {"leave.question", "Матч ещё не окончен. Всё равно выйти?"},
    {"leave.leave", "Выйти"},
    {"leave.cancel", "Отмена"},

    {"aim.left", "Влево"},
    {"aim.right", "Вправо"},
    {"aim.up", "Вверх"},
    {"aim.down", "Вниз"},
    {"aim.ok", "ОК"},
    {"aim.takeBack", "Шаг назад"},
    {"aim.powerByKeys", "[↑][↓] — сила броска. [ПРОБЕЛ] — бросок"},

    {"switch.begin", "Нажмите, чтобы прицелиться"},
    {"switch.angle", "Нажмите, когда направление верное"},
    {"switch.pitch", "Нажмите, когда высота верная"},
    {"switch.power", "Нажмите, когда сила верная"},
    {"switch.throw", "Нажмите, чтобы бросить"},
    {"switch.again", "Нажмите, чтобы прицелиться заново"},
    {"switch.goOn", "Нажмите, чтобы продолжить"},
    {"switch.resting", "Нажмите, чтобы возобновить выбор"},

    {"key.space", "Пробел"},

    {"controls.title", "Клавиши и кнопки"},
    {"controls.help",
     "Выберите + и нажмите клавишу или кнопку: до трёх на действие. Чтобы убрать лишнюю, выберите её."},
    {"controls.keyboard", "Клавиатура"},
    {"controls.accept", "Прицел, бросок, ОК"},
    {"controls.everything", "Где что лежит"},
    {"controls.addKey", "Добавить клавишу"},
    {"controls.addButton", "Добавить кнопку"},
    {"controls.pressButton", "Нажмите кнопку…"},
    {"controls.moved.format", "%@ — теперь «%@», а не «%@»."},
    {"controls.needed.format", "%@ остаётся: у действия «%@» больше ничего нет."},
    {"controls.reserved.format", "%@ — клавиша меню."},
    {"controls.reset", "Вернуть обычные клавиши"},
    {"button.cross", "Крест"},
    {"button.circle", "Круг"},
    {"button.square", "Квадрат"},
    {"button.triangle", "Треугольник"},
    {"button.number.format", "Кнопка %@"},

    {"sound.throw", "Бросок"},
    {"sound.hit", "Удар мяча о мяч"},
    {"sound.victory", "Ликование"},
});

} // namespace vorbel::L10n::options
