// English texts of the options.
#pragma once

#include "l10n/Table.h"

namespace vorbel::L10n::options {

inline constexpr auto en = std::to_array<Text>({
    {"menu.options", "Options"},

    {"options.throw", "Throwing"},
    {"options.powerPace", "Swing of the power"},
    {"options.powerPace.help",
     "The power swings more slowly before the throw, or waits for the arrow keys to set it."},
    {"options.asUsual", "As usual"},
    {"options.byKeys", "Set by keys"},
    {"options.fineAim", "Fine aim and taking back"},
    {"options.fineAim.help",
     "With Shift the arrow keys aim in small steps. Backspace takes back the power, then the aim."},

    {"options.oneSwitch", "One switch"},
    {"options.switchOn", "Play with one switch"},
    {"options.switchOn.help", "What can be chosen takes turns by itself; one key, click or button takes it."},
    {"options.switchPace", "Time for each choice"},
    {"options.switchPace.help", "How long each choice waits to be taken."},
    {"options.switchAsks", "Ask before the throw"},
    {"options.switchAsks.help", "Offers to aim again before the ball is released."},
    {"options.switchRest", "Rest after a press"},
    {"options.switchRest.help", "A press that follows the last one sooner does not count."},
    {"options.switchKey", "One more key"},
    {"options.switchKey.help", "A further key that acts as the switch: choose this, then press the key."},
    {"options.pressKey", "Press a key …"},
    {"options.none", "None"},
    {"options.seconds.format", "%@ s"},

    {"options.devices", "Mouse and controller"},
    {"options.courtButtons", "Buttons on the court"},
    {"options.courtButtons.help", "Large buttons at the edge of the court aim, throw and take back."},
    {"options.controller", "Controller"},
    {"options.controller.help", "Game controllers and switch interfaces aim, throw and choose."},

    {"options.voice", "Voice and tones"},
    {"options.speech", "Speech"},
    {"options.speech.help", "Messages, the aim and where the balls lie are spoken. The key W says it again."},
    {"aim.everything", "Say positions"},
    {"options.tones", "Tones for the aim"},
    {"options.tones.help", "A tone rises with the power and moves from left to right with the angle."},
    {"options.hitPlaces", "Hits in stereo"},
    {"options.hitPlaces.help", "A hit is heard on the side of the court where the balls meet."},

    {"options.sight", "Seeing"},
    {"options.ballMarks", "Marks on the balls"},
    {"options.ballMarks.help", "Red balls carry rings, blue balls crosses."},
    {"options.ballOutlines", "Outlined balls"},
    {"options.ballOutlines.help", "A line around each ball sets it off from the court."},
    {"options.clearPointer", "White pointer"},
    {"options.clearPointer.help", "The aiming pointer is white with a black edge."},
    {"options.solidPanels", "Solid panels"},
    {"options.solidPanels.help", "Nothing shines through the panels of the display."},

    {"options.sound", "Sound"},
    {"options.mute", "No sound"},
    {"options.mute.help", "Turns all sounds off. The key M does the same."},
    {"options.crowdVolume", "Volume of the crowd"},
    {"options.crowdVolume.help", "How loud the spectators are."},
    {"options.effectVolume", "Volume of the game"},
    {"options.effectVolume.help", "How loud throws, hits and results are."},
    {"options.soundNotes", "Show sounds"},
    {"options.soundNotes.help", "A note names each sound as it is heard."},

    {"options.rest", "Rest and safety"},
    {"options.menuPauses", "The menu stops the match"},
    {"options.menuPauses.help", "While a menu is open, the match waits."},
    {"options.askToLeave", "Ask before leaving"},
    {"options.askToLeave.help", "Whoever closes the window during a match is asked first."},

    {"leave.question", "The match is not over yet. Leave anyway?"},
    {"leave.leave", "Leave"},
    {"leave.cancel", "Cancel"},

    {"aim.left", "Left"},
    {"aim.right", "Right"},
    {"aim.up", "Up"},
    {"aim.down", "Down"},
    {"aim.ok", "OK"},
    {"aim.takeBack", "Take back"},
    {"aim.powerByKeys", "[↑][↓] set the power. [SPACE] throws"},

    {"switch.begin", "Press to aim"},
    {"switch.angle", "Press when the direction is right"},
    {"switch.pitch", "Press when the height is right"},
    {"switch.power", "Press when the power is right"},
    {"switch.throw", "Press to throw"},
    {"switch.again", "Press to aim again"},
    {"switch.goOn", "Press to go on"},
    {"switch.resting", "Press to wake the choice"},

    {"key.space", "Space"},

    {"controls.title", "Keys and buttons"},
    {"controls.help",
     "Choose + and press a key or button: up to three for each action. Choose one to take it away."},
    {"controls.keyboard", "Keyboard"},
    {"controls.accept", "Aim, throw, OK"},
    {"controls.everything", "Where everything lies"},
    {"controls.addKey", "Add a key"},
    {"controls.addButton", "Add a button"},
    {"controls.pressButton", "Press a button …"},
    {"controls.moved.format", "%@ is now for “%@”, no longer for “%@”."},
    {"controls.needed.format", "%@ stays: “%@” has nothing else."},
    {"controls.reserved.format", "%@ belongs to the menus."},
    {"controls.reset", "Restore the usual ones"},
    {"button.cross", "Cross"},
    {"button.circle", "Circle"},
    {"button.square", "Square"},
    {"button.triangle", "Triangle"},
    {"button.number.format", "Button %@"},

    {"sound.throw", "Throw"},
    {"sound.hit", "Ball hits ball"},
    {"sound.victory", "Cheers"},
});

} // namespace vorbel::L10n::options
