// The menu over arena and display. A screen is made when it is opened: there are one or none of each.
pragma ComponentBehavior: Bound
import QtQuick
import Vorbel

FocusScope {
    id: overlay

    required property MenuModel menu
    required property LeaveQuestion leaving

    visible: menu.open
    LayoutMirroring.enabled: menu.rightToLeft
    LayoutMirroring.childrenInherit: true

    // How a match ended is seen first; then its result comes in.
    states: State {
        name: "result"
        when: overlay.menu.screen === MenuModel.MatchResult
    }
    transitions: [
        Transition {
            to: "result"

            SequentialAnimation {
                PropertyAction { target: overlay; property: "opacity"; value: 0 }
                PauseAnimation { duration: 1200 }
                NumberAnimation { target: overlay; property: "opacity"; to: 1; duration: 600; easing.type: Easing.InOutQuad }
            }
        },
        Transition {
            from: "result"

            PropertyAction { target: overlay; property: "opacity"; value: 1 }
        }
    ]

    Repeater {
        model: overlay.menu.screen === MenuModel.Main ? 1 : 0

        MainScreen {
            anchors.fill: parent
            menu: overlay.menu
        }
    }
    Repeater {
        model: overlay.menu.screen === MenuModel.Country ? 1 : 0

        CountryScreen {
            anchors.fill: parent
            menu: overlay.menu
        }
    }
    Repeater {
        model: overlay.menu.screen === MenuModel.BcClass ? 1 : 0

        ClassScreen {
            anchors.fill: parent
            menu: overlay.menu
        }
    }
    Repeater {
        model: overlay.menu.screen === MenuModel.Rules ? 1 : 0

        RulesScreen {
            anchors.fill: parent
            menu: overlay.menu
        }
    }
    Repeater {
        model: overlay.menu.screen === MenuModel.About ? 1 : 0

        AboutScreen {
            anchors.fill: parent
            menu: overlay.menu
        }
    }
    Repeater {
        model: overlay.menu.screen === MenuModel.Diary ? 1 : 0

        DiaryScreen {
            anchors.fill: parent
            menu: overlay.menu
        }
    }
    Repeater {
        model: overlay.menu.screen === MenuModel.Options ? 1 : 0

        OptionsScreen {
            anchors.fill: parent
            options: overlay.menu.options
            controls: overlay.menu.controls
            texts: overlay.menu.texts
        }
    }
    Repeater {
        model: overlay.menu.screen === MenuModel.Controls ? 1 : 0

        ControlsScreen {
            anchors.fill: parent
            controls: overlay.menu.controls
            texts: overlay.menu.texts
        }
    }
    Repeater {
        model: overlay.menu.screen === MenuModel.Leave ? 1 : 0

        LeaveScreen {
            anchors.fill: parent
            leaving: overlay.leaving
        }
    }
    Repeater {
        model: overlay.menu.screen === MenuModel.MatchResult ? 1 : 0

        ResultScreen {
            anchors.fill: parent
            menu: overlay.menu
        }
    }
}
