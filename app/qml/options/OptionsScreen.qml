// What of the game the player can change.
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Vorbel

MenuBackdrop {
    id: screen

    required property OptionsModel options
    required property ControlsModel controls
    required property MenuTexts texts

    ScreenTitle {
        text: screen.options.title
    }
    Flickable {
        id: view

        readonly property bool switchGroup: true

        contentWidth: width
        contentHeight: rows.height + 2 * rows.y
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        Layout.preferredWidth: Math.min(Theme.grown(860), screen.availableWidth)
        Layout.preferredHeight: Math.min(contentHeight, screen.availableHeight - Theme.grown(200))
        Layout.alignment: Qt.AlignHCenter
        Accessible.role: Accessible.Grouping
        Accessible.name: screen.options.title

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
            spacing: Theme.padding

            Repeater {
                id: list
                model: screen.options

                OptionRow {
                    width: rows.width
                    scrollKeys: keys
                    onPicked: place => screen.options.choose(index, place)
                }
            }
        }
    }
    MenuButton {
        text: screen.controls.title
        onClicked: screen.controls.open()
    }
    MenuButton {
        focus: true
        text: screen.texts.back
        onClicked: screen.options.close()
    }
}
