// The game's keys, whatever has the focus. A held Space is one action: it must not run through a whole throw.
import QtQuick
import Vorbel

Item {
    id: keys

    required property ContentView view

    Shortcut { sequence: "Space"; autoRepeat: false; onActivated: keys.view.pressAction() }
    Shortcut { sequence: "Left"; onActivated: keys.view.pressLeft() }
    Shortcut { sequence: "Right"; onActivated: keys.view.pressRight() }
    Shortcut { sequence: "Up"; onActivated: keys.view.pressUp() }
    Shortcut { sequence: "Down"; onActivated: keys.view.pressDown() }
    Shortcut { sequence: "Escape"; autoRepeat: false; onActivated: keys.view.pressExitFullScreen() }
}
