// One side of the match: its points, the balls it has left, and the switch that hands it to the computer.
import QtQuick
import QtQuick.Layouts
import Vorbel

Panel {
    id: side

    required property string title
    required property color sideColor
    required property string scoreLabel
    required property int score
    required property string ballsLeftLabel
    required property int ballsLeft
    required property string aiLabel
    required property bool aiOn
    required property bool hasTurn
    required property bool rightToLeft

    signal aiToggled(bool on)

    border.width: hasTurn ? 2 : 1
    border.color: hasTurn ? sideColor : Theme.hairline

    ColumnLayout {
        LayoutMirroring.enabled: side.rightToLeft
        LayoutMirroring.childrenInherit: true
        spacing: Theme.gap
        width: Math.max(implicitWidth, 150)

        Label {
            text: side.title
            color: side.sideColor
            font.pixelSize: Theme.title
            font.weight: Font.Black
            Layout.fillWidth: true
        }
        CountRow {
            side: side.title
            label: side.scoreLabel
            count: side.score
        }
        CountRow {
            side: side.title
            label: side.ballsLeftLabel
            count: side.ballsLeft
        }
        BallsLeft {
            count: side.ballsLeft
            ballColor: side.sideColor
        }
        ToggleSwitch {
            Layout.topMargin: 4
            Layout.fillWidth: true
            text: side.aiLabel
            accessibleName: side.aiLabel + ", " + side.title
            on: side.aiOn
            tint: side.sideColor
            onSwitched: on => side.aiToggled(on)
        }
    }
}
