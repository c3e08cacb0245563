// A button on the court, large enough for an unsteady hand.
import QtQuick
import Vorbel

PressButton {
    id: button

    required property string name // as it is read out

    implicitWidth: Math.max(56, contentItem.implicitWidth + 2 * Theme.gap) // points; 44 are thought the least
    implicitHeight: 56
    focusPolicy: Qt.NoFocus // the mouse's alone: the keyboard has its own keys
    font.family: Theme.fontFamily
    font.pixelSize: 24 // whatever the size of texts: with it a button would cover the court
    font.bold: true
    autoRepeatDelay: 500 // ms
    autoRepeatInterval: 120
    Accessible.name: name
    Accessible.ignored: !enabled // while the menu is open

    background: Rectangle {
        radius: Theme.radius
        color: button.down ? Qt.rgba(0.35, 0.35, 0.4, 0.95) : Qt.rgba(0, 0, 0, 0.8)
        border.width: 2
        border.color: Theme.white(button.hovered ? 0.9 : 0.5)
    }
}
