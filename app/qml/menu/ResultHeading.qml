// Whose points stand in which column of the result; each row says it by itself to those who hear it.
import QtQuick
import QtQuick.Layouts
import Vorbel

RowLayout {
    id: heading

    required property string redName
    required property string blueName

    spacing: 0

    Item {
        Layout.fillWidth: true
    }
    Side {
        text: heading.redName
        color: Theme.red
    }
    Side {
        text: heading.blueName
        color: Theme.blue
    }

    component Side: Text {
        font.family: Theme.fontFamily
        font.pixelSize: Theme.caption
        font.bold: true
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignHCenter
        Accessible.ignored: true
        Layout.preferredWidth: Theme.grown(60) + Theme.pointsGap // a column of points
    }
}
