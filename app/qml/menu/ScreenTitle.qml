// The heading of a screen.
import QtQuick
import QtQuick.Layouts
import Vorbel

Label {
    font.pixelSize: Theme.title
    font.bold: true
    horizontalAlignment: Text.AlignHCenter
    Layout.alignment: Qt.AlignHCenter
    Accessible.role: Accessible.Heading
}
