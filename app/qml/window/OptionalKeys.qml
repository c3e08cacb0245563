// Keys that act only for those who have turned them on.
import QtQuick
import Vorbel

Item {
    id: keys

    required property Keyboard keyboard
    required property Options options
    required property bool menuOpen

    readonly property bool fineAim: options.fineAim && !menuOpen
    readonly property bool powerByHand: options.powerByHand && !menuOpen

    Shortcut { sequence: "Shift+Left"; enabled: keys.fineAim; onActivated: keys.keyboard.pressFineLeft() }
    Shortcut { sequence: "Shift+Right"; enabled: keys.fineAim; onActivated: keys.keyboard.pressFineRight() }
    Shortcut { sequence: "Shift+Up"; enabled: keys.fineAim; onActivated: keys.keyboard.pressFineUp() }
    Shortcut { sequence: "Shift+Down"; enabled: keys.fineAim; onActivated: keys.keyboard.pressFineDown() }
    Shortcut { sequence: "Backspace"; enabled: keys.fineAim; onActivated: keys.keyboard.pressTakeBack() }
    Shortcut { sequence: "PgUp"; enabled: keys.powerByHand; onActivated: keys.keyboard.pressPageUp() }
    Shortcut { sequence: "PgDown"; enabled: keys.powerByHand; onActivated: keys.keyboard.pressPageDown() }
    AnyLayoutShortcut {
        sequences: ["W"]
        enabled: keys.options.speech && !keys.menuOpen
        onActivated: keys.keyboard.pressEverything()
    }
    AnyLayoutShortcut { sequences: ["M"]; onActivated: keys.options.toggleMute() }
}
