// A command in a menu, with the keys that do the same.
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Vorbel

T.MenuItem {
    id: control

    property string keys: ""
    readonly property bool switchCommand: true // for one switch

    function take() {
        menu.dismiss();
        triggered();
    }
    function leave() {
        menu.dismiss();
    }

    implicitWidth: contentItem.implicitWidth + leftPadding + rightPadding
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    horizontalPadding: 12
    verticalPadding: 6
    Accessible.name: text
    Accessible.description: keys
    Accessible.onPressAction: take()

    contentItem: RowLayout {
        spacing: 32

        Text {
            Layout.fillWidth: true
            Layout.alignment: Qt.AlignBaseline
            text: control.text
            color: control.highlighted ? "black" : "white"
            font { family: control.font.family; pixelSize: Theme.body }
            textFormat: Text.PlainText
        }
        Text {
            Layout.alignment: Qt.AlignBaseline
            text: control.keys
            color: control.highlighted ? Qt.rgba(0, 0, 0, 0.7) : Theme.white(0.6)
            font.pixelSize: Theme.caption
            textFormat: Text.PlainText
        }
    }
    background: Rectangle {
        color: control.highlighted ? Theme.yellow : "transparent"
        radius: Theme.buttonRadius
    }
}
