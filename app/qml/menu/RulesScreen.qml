// The rules of the game and its keys.
import QtQuick
import QtQuick.Layouts
import Vorbel

MenuBackdrop {
    id: screen

    required property MenuModel menu

    ScreenTitle {
        text: screen.menu.texts.rules
    }
    ScrollingText {
        text: screen.menu.texts.rulesText
        maximumWidth: screen.availableWidth
        maximumHeight: screen.availableHeight - Theme.grown(140)
        Layout.alignment: Qt.AlignHCenter
    }
    MenuButton {
        focus: true
        text: screen.menu.texts.back
        onClicked: screen.menu.back()
    }
}
