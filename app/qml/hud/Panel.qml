// The dark backdrop of a part of the heads-up display.
import QtQuick
import Vorbel

Rectangle {
    id: panel

    default property alias content: holder.data

    implicitWidth: holder.childrenRect.width + 2 * Theme.padding
    implicitHeight: holder.childrenRect.height + 2 * Theme.padding
    color: Theme.panel
    radius: Theme.radius
    border.color: Theme.hairline

    Rectangle {
        z: -1 // under the backdrop
        anchors.fill: parent
        radius: panel.radius
        color: Theme.shade
    }
    Item {
        id: holder
        anchors.fill: parent
        anchors.margins: Theme.padding
    }
}
