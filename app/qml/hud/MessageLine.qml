// What the referee says. Each message reaches the accessibility bus as the new name of the line.
import QtQuick
import Vorbel

Rectangle {
    id: line

    required property string message
    required property real maximumWidth

    visible: message.length > 0
    implicitWidth: label.width + 2 * Theme.padding
    implicitHeight: label.height + Theme.padding
    radius: Theme.radius
    color: Theme.white(0.95)

    TextMetrics {
        id: oneLine
        font: label.font
        text: line.message
    }
    Label {
        id: label
        anchors.centerIn: parent
        width: Math.min(Math.ceil(oneLine.advanceWidth) + 2, line.maximumWidth - 2 * Theme.padding)
        text: line.message
        color: "black"
        font.pixelSize: Theme.headline
        font.bold: true
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        Accessible.role: Accessible.AlertMessage
    }
}
