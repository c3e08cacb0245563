// A switch with its label; Return works it, Space belongs to the game.
import QtQuick
import QtQuick.Templates as T
import Vorbel

T.Switch {
    id: control

    required property string accessibleName
    required property bool on
    required property color tint

    signal switched(bool on)

    implicitWidth: contentItem.implicitWidth + leftPadding + rightPadding
    implicitHeight: Math.max(contentItem.implicitHeight, indicator.height)
    leftPadding: mirrored ? indicator.width + Theme.gap : 0
    rightPadding: mirrored ? 0 : indicator.width + Theme.gap
    focusPolicy: Qt.TabFocus
    checked: on
    onCheckedChanged: if (checked !== on)
        switched(checked)

    Keys.onReturnPressed: toggle()
    Keys.onEnterPressed: toggle()
    Accessible.name: accessibleName
    Accessible.ignored: !enabled // the display while the menu is open

    contentItem: Text {
        text: control.text
        color: "white"
        font.family: Theme.fontFamily
        font.pixelSize: Theme.body
        textFormat: Text.PlainText
        verticalAlignment: Text.AlignVCenter
    }
    indicator: Rectangle {
        x: control.mirrored ? 0 : control.width - width
        y: (control.height - height) / 2
        width: 40
        height: 22
        radius: height / 2
        color: control.checked ? control.tint : Theme.white(0.25)
        border.width: control.visualFocus ? 2 : 0
        border.color: "white"

        Rectangle {
            x: control.checked !== control.mirrored ? parent.width - width - 2 : 2
            y: 2
            width: 18
            height: 18
            radius: 9
            color: "white"
        }
    }
}
