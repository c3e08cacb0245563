// The balls of a side in this end: filled ones are still to be thrown. The number beside it says the same.
pragma ComponentBehavior: Bound
import QtQuick
import Vorbel

Row {
    id: balls

    required property int count
    required property color ballColor
    readonly property int ballsPerSide: 6

    spacing: 4
    Accessible.ignored: true

    Repeater {
        model: balls.ballsPerSide

        Rectangle {
            id: ball

            required property int index
            readonly property bool isToThrow: index < balls.count

            width: 10
            height: 10
            radius: 5
            color: ball.isToThrow ? balls.ballColor : "transparent"
            border.color: ball.isToThrow ? "transparent" : Theme.white(0.3)
        }
    }
}
