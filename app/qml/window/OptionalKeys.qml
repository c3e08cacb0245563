// Keys that act only for those who have turned them on.
import QtQuick
import Vorbel

Item {
    id: keys

    required property Keyboard keyboard
    required property Options options
    required property GameControls controls
    required property bool menuOpen

    readonly property bool fineAim: options.fineAim && !menuOpen
    readonly property bool powerByHand: options.powerByHand && !menuOpen

    AnyLayoutShortcut { sequences: keys.controls.fineLeft; enabled: keys.fineAim; autoRepeat: true; onActivated: keys.keyboard.pressFineLeft() }
    AnyLayoutShortcut { sequences: keys.controls.fineRight; enabled: keys.fineAim; autoRepeat: true; onActivated: keys.keyboard.pressFineRight() }
    AnyLayoutShortcut { sequences: keys.controls.fineUp; enabled: keys.fineAim; autoRepeat: true; onActivated: keys.keyboard.pressFineUp() }
    AnyLayoutShortcut { sequences: keys.controls.fineDown; enabled: keys.fineAim; autoRepeat: true; onActivated: keys.keyboard.pressFineDown() }
    AnyLayoutShortcut { sequences: keys.controls.takeBack; enabled: keys.fineAim; onActivated: keys.keyboard.pressTakeBack() }
    AnyLayoutShortcut { sequences: keys.controls.morePower; enabled: keys.powerByHand; autoRepeat: true; onActivated: keys.keyboard.pressPageUp() }
    AnyLayoutShortcut { sequences: keys.controls.lessPower; enabled: keys.powerByHand; autoRepeat: true; onActivated: keys.keyboard.pressPageDown() }
    AnyLayoutShortcut {
        sequences: keys.controls.everything
        enabled: keys.options.speech && !keys.menuOpen
        onActivated: keys.keyboard.pressEverything()
    }
    AnyLayoutShortcut { sequences: keys.controls.mute; onActivated: keys.options.toggleMute() }
}
