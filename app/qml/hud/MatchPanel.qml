// The middle of the display, a strip above the flags: which end it is, who plays, and how strong the computer is.
// In the ramp class a third line says which keys rest.
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

        RowLayout {
            spacing: 12

            MatchLine {
                text: "VORBEL"
                font.pixelSize: Theme.headline
                font.weight: Font.Black
                font.letterSpacing: 3
            }
            MatchLine {
                text: panel.hud.end
                color: Theme.yellow
                font.bold: true
            }
            MatchLine {
                text: panel.hud.tournament
                color: Theme.orange
                font.pixelSize: Theme.caption
                font.bold: true
                visible: text.length > 0 && !Theme.largeText
            }
            Item {
                Layout.fillWidth: true
            }
            MatchLine {
                text: panel.hud.difficultyCaption
                color: Theme.white(0.8)
                font.pixelSize: Theme.caption
                horizontalAlignment: Text.AlignHCenter
                Layout.fillWidth: true
                Layout.minimumWidth: implicitWidth
                Layout.preferredWidth: Math.max(implicitWidth, levels.implicitWidth)
                Layout.maximumWidth: Layout.preferredWidth
            }
        }
        MatchLine {
            text: panel.hud.tournament
            color: Theme.orange
            font.pixelSize: Theme.caption
            font.bold: true
            visible: text.length > 0 && Theme.largeText
            wrapMode: Text.Wrap
            Layout.fillWidth: true
        }
        RowLayout {
            spacing: 2 * Theme.gap

            MatchLine {
                text: panel.hud.playingAs
                color: Theme.white(0.7)
                wrapMode: Text.Wrap
                Layout.fillWidth: true
            }
            RowLayout {
                id: levels
                spacing: 6

                // Counted, not listed: other words must not make new buttons, since a layout of Qt 6.4 that is
                // resized at that moment still knows the old ones.
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
        MatchLine {
            text: panel.hud.rampHint
            color: Theme.white(0.5)
            font.pixelSize: Theme.caption
            wrapMode: Text.Wrap
            Layout.fillWidth: Theme.largeText
        }
    }

    component MatchLine: Label {
        visible: text.length > 0
        Layout.alignment: Qt.AlignBaseline
    }
}
