// The frame around the control that has the keyboard: outside of it, so that it shows on every ground.
import QtQuick
import Vorbel

Rectangle {
    id: ring

    required property bool shown

    anchors.fill: parent
    anchors.margins: -Theme.ring
    visible: shown
    color: "transparent"
    border.width: 2
    border.color: "white"
}
