// By option: what a press of the one switch would do.
import QtQuick
import Vorbel

Rectangle {
    id: line

    required property string prompt

    visible: prompt.length > 0
    implicitWidth: label.implicitWidth + 2 * Theme.padding
    implicitHeight: label.implicitHeight + Theme.padding
    radius: Theme.radius
    color: Theme.yellow

    Label {
        id: label
        anchors.centerIn: parent
        text: line.prompt
        color: "black"
        font.pixelSize: Theme.headline
        font.bold: true
    }
}
