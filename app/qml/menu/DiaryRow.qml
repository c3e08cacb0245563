// One match of the diary: when it was, how it ended.
import QtQuick
import QtQuick.Layouts
import Vorbel

Item {
    id: row

    required property string date
    required property string result

    implicitHeight: Math.max(Theme.grown(32), cells.implicitHeight)

    Accessible.role: Accessible.ListItem
    Accessible.name: date + ", " + result

    RowLayout {
        id: cells
        anchors.fill: parent
        anchors.leftMargin: Theme.padding
        anchors.rightMargin: Theme.padding
        spacing: Theme.padding

        Text {
            text: row.date
            color: Theme.white(0.6)
            font.family: Theme.fontFamily
            font.pixelSize: Theme.caption
            textFormat: Text.PlainText
            horizontalAlignment: Text.AlignLeft
            Layout.fillWidth: true
        }
        Text {
            text: row.result
            color: "white"
            font.family: Theme.fontFamily
            font.pixelSize: Theme.caption
            textFormat: Text.PlainText
        }
    }
    Rectangle {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: Theme.thinLine
        color: Theme.hairline
    }
}
