// What keys and buttons do, and how that is changed.
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Vorbel

MenuBackdrop {
    id: screen

    required property ControlsModel controls
    required property MenuTexts texts

    readonly property real listWidth: Math.min(Theme.grown(860), availableWidth)
    readonly property real columnWidth: 0.35 * listWidth

    spacing: Theme.gap

    ScreenTitle {
        text: screen.controls.title
    }
    Label {
        text: screen.controls.help
        color: Theme.white(0.7)
        font.pixelSize: Theme.caption
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        Layout.preferredWidth: screen.listWidth
        Layout.alignment: Qt.AlignHCenter
    }
    RowLayout {
        spacing: Theme.padding
        Layout.preferredWidth: screen.listWidth - 2 * Theme.padding
        Layout.fillWidth: false // as the rows
        Layout.alignment: Qt.AlignHCenter

        Item {
            Layout.fillWidth: true
        }
        Label {
            text: screen.controls.keyboardTitle
            color: Theme.yellow
            font.bold: true
            horizontalAlignment: Text.AlignLeft
            Accessible.role: Accessible.Heading
            Layout.preferredWidth: screen.columnWidth
        }
        Label {
            text: screen.controls.controllerTitle
            color: Theme.yellow
            font.bold: true
            horizontalAlignment: Text.AlignLeft
            Accessible.role: Accessible.Heading
            Layout.preferredWidth: screen.columnWidth
        }
    }
    Flickable {
        id: view

        readonly property bool switchGroup: true

        contentWidth: width
        contentHeight: rows.height + 2 * rows.y
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        Layout.preferredWidth: screen.listWidth
        Layout.preferredHeight: Math.min(contentHeight, Math.max(240, screen.availableHeight - Theme.grown(290)))
        Layout.alignment: Qt.AlignHCenter
        Accessible.role: Accessible.Grouping
        Accessible.name: screen.controls.title

        T.ScrollBar.vertical: SlimScrollBar {}

        ScrollKeys {
            id: keys
            target: view
        }
        Column {
            id: rows
            x: Theme.padding // the scroll bar is at one side or the other
            y: 2 * Theme.ring
            width: view.width - 2 * Theme.padding
            spacing: 10

            Repeater {
                model: screen.controls

                ControlsRow {
                    width: rows.width
                    controls: screen.controls
                    scrollKeys: keys
                    columnWidth: screen.columnWidth
                }
            }
        }
    }
    Label {
        text: screen.controls.news
        color: Theme.yellow
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        Accessible.role: Accessible.AlertMessage
        Layout.preferredWidth: screen.listWidth
        Layout.minimumHeight: Theme.grown(40)
        Layout.alignment: Qt.AlignHCenter
    }
    MenuButton {
        implicitWidth: Theme.grown(340)
        text: screen.controls.resetTitle
        onClicked: screen.controls.reset()
    }
    MenuButton {
        focus: true
        text: screen.texts.back
        onClicked: screen.controls.close()
    }
}
