// Who made the game, and where to find them.
import QtQuick
import QtQuick.Layouts
import Vorbel

MenuBackdrop {
    id: screen

    required property MenuModel menu

    ScreenTitle {
        text: screen.menu.texts.about
    }
    ScrollingText {
        text: screen.menu.texts.aboutText
        maximumHeight: screen.availableHeight - 190
        Layout.alignment: Qt.AlignHCenter
    }
    LinkButton {
        text: screen.menu.webSite
        onClicked: screen.menu.openWebSite()
    }
    MenuButton {
        focus: true
        text: screen.menu.texts.back
        onClicked: screen.menu.back()
    }
}
