// By option: the frame around what one switch would press now.
import QtQuick
import Vorbel

Rectangle {
    id: frame

    required property OneSwitch oneSwitch

    readonly property rect around: oneSwitch.frame // in pixels of the window
    readonly property int gap: 6 * Theme.point

    x: around.x - gap
    y: around.y - gap
    width: around.width + 2 * gap
    height: around.height + 2 * gap
    visible: around.width > 0
    color: "transparent"
    radius: Theme.radius * Theme.point
    border.width: 4 * Theme.point
    border.color: Theme.yellow
}
