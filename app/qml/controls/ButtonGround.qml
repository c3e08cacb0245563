// What a button stands on. The ring around it shows where the keyboard is.
import QtQuick
import Vorbel

Rectangle {
    id: ground

    required property bool selected
    required property bool pressed
    required property bool hovered
    required property bool focused

    radius: Theme.buttonRadius
    color: selected ? Theme.yellow : Theme.white(pressed ? 0.35 : hovered ? 0.25 : 0.15)

    FocusRing {
        shown: ground.focused
        radius: ground.radius
    }
}
