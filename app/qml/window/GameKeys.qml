// The keys of a match. One press is one action: a held one must not run through a whole throw, but the aim moves on.
import QtQuick
import Vorbel

Item {
    id: keys

    required property Keyboard keyboard
    required property GameControls controls
    required property bool menuOpen

    readonly property bool inMatch: !menuOpen

    AnyLayoutShortcut { sequences: keys.controls.accept; enabled: keys.inMatch; onActivated: keys.keyboard.pressAction() }
    AnyLayoutShortcut { sequences: keys.controls.left; enabled: keys.inMatch; autoRepeat: true; onActivated: keys.keyboard.pressLeft() }
    AnyLayoutShortcut { sequences: keys.controls.right; enabled: keys.inMatch; autoRepeat: true; onActivated: keys.keyboard.pressRight() }
    AnyLayoutShortcut { sequences: keys.controls.up; enabled: keys.inMatch; autoRepeat: true; onActivated: keys.keyboard.pressUp() }
    AnyLayoutShortcut { sequences: keys.controls.down; enabled: keys.inMatch; autoRepeat: true; onActivated: keys.keyboard.pressDown() }
    AnyLayoutShortcut { sequences: keys.controls.menu; enabled: keys.inMatch; onActivated: keys.keyboard.pressMenu() }
    Shortcut { sequence: "Escape"; autoRepeat: false; onActivated: keys.keyboard.pressExitFullScreen() }
    // Neither presses a control that has the focus nor leads on from it.
    Shortcut { sequences: keys.menuOpen ? keys.controls.given : keys.controls.idle } // qmllint disable
}
