// The points of both sides in an end, or in all.
import QtQuick
import QtQuick.Layouts
import Vorbel

Item {
    id: row

    required property string label
    required property int red
    required property int blue
    required property string redName
    required property string blueName

    property color labelColor: "white"
    property color redColor: "white"
    property color blueColor: "white"
    property bool heavy: false

    implicitWidth: cells.implicitWidth
    implicitHeight: Theme.grown(heavy ? 48 : 34)

    Accessible.role: Accessible.StaticText
    Accessible.name: label + " " + redName + " " + red + ", " + blueName + " " + blue

    RowLayout {
        id: cells
        anchors.fill: parent
        spacing: 0

        Text {
            text: row.label
            color: row.labelColor
            font.family: Theme.fontFamily
            font.pixelSize: Theme.body
            textFormat: Text.PlainText
            horizontalAlignment: Text.AlignLeft
            Layout.fillWidth: true
            Layout.minimumWidth: Theme.grown(70)
        }
        Points {
            heavy: row.heavy
            text: row.red
            color: row.redColor
        }
        Points {
            heavy: row.heavy
            text: row.blue
            color: row.blueColor
        }
    }

    component Points: Text {
        required property bool heavy

        font.family: Theme.fontFamily
        font.pixelSize: heavy ? Theme.title : Theme.headline
        font.weight: heavy ? Font.Black : Font.Normal
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignHCenter
        Layout.preferredWidth: Theme.grown(60)
        Layout.leftMargin: Theme.pointsGap / 2
        Layout.rightMargin: Theme.pointsGap / 2
    }
}
