// Who made the game, and its own pages in the browser.
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
        maximumWidth: screen.availableWidth
        maximumHeight: screen.availableHeight - Theme.grown(220)
        Layout.alignment: Qt.AlignHCenter
    }
    Label {
        text: screen.menu.nameAndVersion
        Layout.alignment: Qt.AlignHCenter
    }
    LinkButton {
        text: screen.menu.texts.pages
        onClicked: screen.menu.openPages()
    }
    MenuButton {
        focus: true
        text: screen.menu.texts.back
        onClicked: screen.menu.back()
    }
}
