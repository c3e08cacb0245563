// The middle of the display: which end it is, who plays, and how strong the computer is.
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Vorbel

Panel {
    id: panel

    required property HudModel hud
    required property int difficultyIndex
    required property real maximumWidth

    readonly property real contentWidth: maximumWidth - 2 * Theme.padding

    signal difficultyChosen(int index)

    ColumnLayout {
        LayoutMirroring.enabled: panel.hud.rightToLeft
        LayoutMirroring.childrenInherit: true
        spacing: 2
        width: Math.min(implicitWidth, panel.contentWidth)

        MatchLine {
            text: "VORBEL"
            font.pixelSize: Theme.title
            font.weight: Font.Black
            font.letterSpacing: 5
            leftPadding: font.letterSpacing // the last letter is followed by the same space
        }
        MatchLine {
            text: panel.hud.end
            color: Theme.yellow
            font.pixelSize: Theme.headline
            font.bold: true
        }
        MatchLine {
            text: panel.hud.tournament
            color: Theme.orange
            font.pixelSize: Theme.caption
            font.bold: true
        }
        MatchLine {
            text: panel.hud.playingAs
            color: Theme.white(0.7)
        }
        MatchLine {
            text: panel.hud.rampHint
            color: Theme.white(0.5)
            font.pixelSize: Theme.caption
        }
        MatchLine {
            text: panel.hud.difficultyCaption
            color: Theme.white(0.8)
            font.pixelSize: Theme.caption
            Layout.topMargin: Theme.gap
        }
        RowLayout {
            spacing: 6
            Layout.alignment: Qt.AlignHCenter
            Layout.topMargin: 2

            // Counted, not listed: other words must not make new buttons, since a layout of Qt 6.4 that is resized
            // at that moment still knows the old ones.
            Repeater {
                model: panel.hud.difficultyTitles.length

                DifficultyButton {
                    id: level

                    required property int index

                    text: panel.hud.difficultyTitles[level.index]
                    selected: level.index === panel.difficultyIndex
                    onClicked: panel.difficultyChosen(level.index)
                }
            }
        }
    }

    component MatchLine: Label {
        visible: text.length > 0
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        Layout.fillWidth: true
        Layout.maximumWidth: panel.contentWidth
    }
}
