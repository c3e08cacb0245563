// The power of the throw while it swings: from green, soft, to red, hard.
import QtQuick
import Vorbel

Panel {
    id: panel

    required property string caption
    required property real power // percent
    required property real maximumWidth

    Column {
        spacing: Theme.gap

        Label {
            width: bar.width
            text: panel.caption
            horizontalAlignment: Text.AlignHCenter
        }
        Rectangle {
            id: bar

            width: Math.min(Theme.grown(400), panel.maximumWidth - 2 * Theme.padding)
            height: 22
            radius: height / 2
            color: Qt.rgba(0, 0, 0, 0.6)
            border.color: Theme.white(0.2)

            Accessible.role: Accessible.ProgressBar
            // With the value: the toolkit asks no progress bar for one.
            Accessible.name: panel.caption + ": " + Math.round(panel.power) + "%"
            Accessible.ignored: !enabled // the display while the menu is open

            Rectangle {
                readonly property real share: Math.min(panel.power, 100) / 100

                width: Math.max(bar.width * share, height)
                height: bar.height
                radius: bar.radius
                color: Qt.hsva((100 - Math.min(panel.power, 100)) / 300, 1, 1, 1)
            }
        }
    }
}
