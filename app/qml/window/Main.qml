// The one window of the game: the arena, over it the display, over both the menu.
import QtQuick
import Vorbel

Window {
    id: window

    required property ContentView view
    required property VorbelApp shell

    visible: true
    title: "VORBEL"
    // For small screens the program has smaller ones.
    width: 1200
    height: 800
    minimumWidth: 1200
    minimumHeight: 800
    color: "#0d0d14"
    onClosing: close => close.accepted = view.leaving.mayClose()

    Binding {
        target: Theme
        property: "fontFamily"
        value: window.view.settings.fontFamily
    }

    Binding {
        target: Theme
        property: "point"
        value: area.scale
    }
    Binding {
        target: Theme
        property: "solidPanels"
        value: window.view.options.solidPanels
    }
    Binding {
        target: Theme
        property: "textScale"
        value: window.view.options.textScale
    }
    SceneView {
        id: scene
        anchors.fill: parent
        view: window.view
    }
    PointArea {
        id: area

        Label {
            anchors.centerIn: parent
            width: parent.width - 2 * Theme.margin
            visible: text.length > 0
            text: scene.problem
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }
        Notice {
            id: notice
            anchors.fill: parent
            z: 1
            text: window.shell.notice
            closeTitle: window.shell.closeNoticeTitle
            onCloseRequested: {
                window.shell.closeNotice();
                game.forceActiveFocus(Qt.TabFocusReason);
            }
        }
        // Remembers which of its controls has the keyboard while the game menu has it.
        FocusScope {
            id: game
            enabled: !notice.visible
            anchors { fill: parent; topMargin: gameMenu.coveredHeight }

            Hud {
                anchors.fill: parent
                enabled: !window.view.menu.open
                opacity: enabled ? 1 : 1 - 0.6 * menu.opacity // its bright message must not shine through the menu
                view: window.view
            }
            Menu {
                id: menu
                anchors.fill: parent
                menu: window.view.menu
                leaving: window.view.leaving
            }
        }
        SwitchPrompt {
            anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom; bottomMargin: Theme.margin }
            prompt: window.view.menu.open ? window.view.oneSwitch.prompt : ""
        }
        GameMenuBar {
            id: gameMenu
            width: parent.width
            shell: window.shell
            kept: window.view.oneSwitch.on && window.view.menu.open
            onClosed: game.forceActiveFocus(Qt.TabFocusReason) // so that its ring is shown again
        }
    }
    SwitchFrame {
        oneSwitch: window.view.oneSwitch
    }
    Repeater {
        model: window.view.options.speech ? [window.view.announcer] : []

        Announcement {}
    }
    GameKeys {
        keyboard: window.view.keyboard
        controls: window.view.controls
        menuOpen: window.view.menu.open
    }
    OptionalKeys {
        keyboard: window.view.keyboard
        options: window.view.options
        controls: window.view.controls
        menuOpen: window.view.menu.open
    }
}
