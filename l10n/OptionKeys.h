// What the options, the one switch and the buttons on the court say.
#pragma once

#include <array>
#include <string_view>

namespace vorbel::L10n {

inline constexpr auto optionKeys = std::to_array<std::string_view>({
    "menu.options",

    "options.throw",
    "options.powerPace",
    "options.powerPace.help",
    "options.asUsual",
    "options.byKeys",
    "options.fineAim",
    "options.fineAim.help",

    "options.oneSwitch",
    "options.switchOn",
    "options.switchOn.help",
    "options.switchPace",
    "options.switchPace.help",
    "options.switchAsks",
    "options.switchAsks.help",
    "options.switchRest",
    "options.switchRest.help",
    "options.switchKey",
    "options.switchKey.help",
    "options.pressKey",
    "options.none",
    "options.seconds.format",

    "options.devices",
    "options.courtButtons",
    "options.courtButtons.help",
    "options.controller",
    "options.controller.help",

    "options.voice",
    "options.speech",
    "options.speech.help",
    "aim.everything",
    "options.tones",
    "options.tones.help",
    "options.hitPlaces",
    "options.hitPlaces.help",

    "options.sight",
    "options.textSize",
    "options.textSize.help",
    "options.ballMarks",
    "options.ballMarks.help",
    "options.ballOutlines",
    "options.ballOutlines.help",
    "options.clearPointer",
    "options.clearPointer.help",
    "options.solidPanels",
    "options.solidPanels.help",

    "options.sound",
    "options.mute",
    "options.mute.help",
    "options.crowdVolume",
    "options.crowdVolume.help",
    "options.effectVolume",
    "options.effectVolume.help",
    "options.soundNotes",
    "options.soundNotes.help",

    "options.rest",
    "options.menuPauses",
    "options.menuPauses.help",
    "options.askToLeave",
    "options.askToLeave.help",

    "leave.question",
    "leave.leave",
    "leave.cancel",

    "aim.left",
    "aim.right",
    "aim.up",
    "aim.down",
    "aim.ok",
    "aim.takeBack",
    "aim.powerByKeys",

    "switch.begin",
    "switch.angle",
    "switch.pitch",
    "switch.power",
    "switch.throw",
    "switch.again",
    "switch.goOn",
    "switch.resting",

    "key.space",

    "controls.title",
    "controls.help",
    "controls.keyboard",
    "controls.accept",
    "controls.everything",
    "controls.addKey",
    "controls.addButton",
    "controls.pressButton",
    "controls.moved.format",
    "controls.needed.format",
    "controls.reserved.format",
    "controls.reset",
    "button.cross",
    "button.circle",
    "button.square",
    "button.triangle",
    "button.number.format",

    "sound.throw",
    "sound.hit",
    "sound.victory",
});

} // namespace vorbel::L10n
