// A label and the number that belongs to it; read out, it names its side.
import QtQuick
import QtQuick.Layouts
import Vorbel

RowLayout {
    id: row

    required property string side // whose count it is, for those who do not see where it stands
    required property string label
    required property int count

    spacing: Theme.gap

    Accessible.role: Accessible.StaticText
    Accessible.name: side + ", " + label + " " + count
    Accessible.ignored: !enabled // the display while the menu is open

    Text {
        text: row.label
        color: Theme.white(0.7)
        font.family: Theme.fontFamily
        font.pixelSize: Theme.body
        textFormat: Text.PlainText
        Layout.alignment: Qt.AlignBaseline
    }
    Text {
        text: row.count
        color: "white"
        font.family: Theme.fontFamily
        font.pixelSize: Theme.headline
        font.bold: true
        textFormat: Text.PlainText
        Layout.alignment: Qt.AlignBaseline
    }
}
