// The game's keys, whatever has the focus. A held Space is one action: it must not run through a whole throw.
import QtQuick
import Vorbel

Item {
    id: keys

    required property Keyboard keyboard

    Shortcut { sequence: "Space"; autoRepeat: false; onActivated: keys.keyboard.pressAction() }
    Shortcut { sequence: "Left"; onActivated: keys.keyboard.pressLeft() }
    Shortcut { sequence: "Right"; onActivated: keys.keyboard.pressRight() }
    Shortcut { sequence: "Up"; onActivated: keys.keyboard.pressUp() }
    Shortcut { sequence: "Down"; onActivated: keys.keyboard.pressDown() }
    Shortcut { sequence: "Escape"; autoRepeat: false; onActivated: keys.keyboard.pressExitFullScreen() }
}
