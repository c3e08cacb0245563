// The menu bar: the game menu, and the options. In full screen it is hidden, and slides in when the pointer touches the upper
// edge or F10 opens the menu.
import QtQuick
import QtQuick.Templates as T
import Vorbel

Item {
    id: edge

    required property VorbelApp shell
    required property bool kept // in full screen too: one switch does not reach the edge

    signal closed() // the menu: the keyboard is free again

    readonly property bool menuOpen: gameMenu.visible || optionsMenu.visible
    readonly property bool revealed: !shell.inFullScreen || hover.hovered || menuOpen || kept
    readonly property real coveredHeight: bar.y + bar.height // of the window

    height: revealed ? bar.height : 2
    LayoutMirroring.enabled: shell.rightToLeft
    LayoutMirroring.childrenInherit: true

    // A title that is destroyed with its bar crashes the program while assistive technology looks on.
    Component.onDestruction: {
        bar.takeMenu(1);
        bar.takeMenu(0);
    }

    HoverHandler {
        id: hover
    }
    T.MenuBar {
        id: bar

        y: edge.revealed ? 0 : -height
        width: edge.width
        height: contentItem.implicitHeight
        font.family: Theme.fontFamily
        visible: coveredHeight > 0
        focusPolicy: Qt.NoFocus // F10 leads here, Tab stays with the game

        readonly property real coveredHeight: y + height

        Behavior on y {
            NumberAnimation { duration: 150; easing.type: Easing.OutCubic }
        }
        contentItem: Row {
            Repeater {
                model: bar.contentModel
            }
        }
        background: Rectangle {
            color: Theme.bar
        }
        delegate: MenuTitle {}

        DropDownMenu {
            id: gameMenu

            title: edge.shell.gameMenuTitle
            font.family: Theme.fontFamily
            mirroredLayout: edge.shell.rightToLeft
            onClosed: edge.closed()

            CommandItem {
                text: edge.shell.startGameTitle
                keys: edge.shell.newGameKeysShown
                onTriggered: edge.shell.requestNewGame()
            }
            Divider {}
            CommandItem {
                text: edge.shell.rulesTitle
                onTriggered: edge.shell.requestRules()
            }
            CommandItem {
                text: edge.shell.aboutTitle
                onTriggered: edge.shell.requestAbout()
            }
            Divider {}
            CommandItem {
                text: edge.shell.toggleFullScreenTitle
                keys: edge.shell.fullScreenKeysShown
                onTriggered: edge.shell.toggleFullScreenEmulation(false)
            }
        }
        DropDownMenu {
            id: optionsMenu

            title: edge.shell.optionsTitle
            font.family: Theme.fontFamily
            mirroredLayout: edge.shell.rightToLeft
            onClosed: edge.closed()

            CommandItem {
                text: edge.shell.optionsTitle + " …"
                keys: "Ctrl+,"
                onTriggered: edge.shell.requestOptions()
            }
        }
    }

    AnyLayoutShortcut {
        sequences: edge.shell.newGameKeys
        enabled: !edge.menuOpen
        onActivated: edge.shell.requestNewGame()
    }
    AnyLayoutShortcut {
        sequences: edge.shell.fullScreenKeys
        enabled: !edge.menuOpen
        onActivated: edge.shell.toggleFullScreenEmulation(false)
    }
    AnyLayoutShortcut {
        sequences: ["Ctrl+,"]
        enabled: !edge.menuOpen
        onActivated: edge.shell.requestOptions()
    }
    Shortcut {
        sequence: "F10"
        autoRepeat: false
        onActivated: gameMenu.openFromKeyboard()
    }
}
