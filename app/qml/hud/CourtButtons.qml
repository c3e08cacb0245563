// By option: everything that the game's keys do, for the mouse or a finger alone. Held, a button of the aim repeats.
import QtQuick
import Vorbel

Column {
    id: buttons

    required property Keyboard keyboard
    required property MenuTexts texts

    spacing: Theme.gap

    Grid {
        anchors.horizontalCenter: parent.horizontalCenter
        columns: 3
        spacing: Theme.gap
        LayoutMirroring.enabled: false // left is left on every court
        LayoutMirroring.childrenInherit: true

        Item { width: 56; height: 56 }
        CourtButton { text: "↑"; name: buttons.texts.aimUp; autoRepeat: true; onClicked: buttons.keyboard.pressUp() }
        Item { width: 56; height: 56 }
        CourtButton { text: "←"; name: buttons.texts.aimLeft; autoRepeat: true; onClicked: buttons.keyboard.pressLeft() }
        CourtButton { text: buttons.texts.aimOk; name: text; width: 56; font.pixelSize: Theme.headline; onClicked: buttons.keyboard.pressAction() }
        CourtButton { text: "→"; name: buttons.texts.aimRight; autoRepeat: true; onClicked: buttons.keyboard.pressRight() }
        Item { width: 56; height: 56 }
        CourtButton { text: "↓"; name: buttons.texts.aimDown; autoRepeat: true; onClicked: buttons.keyboard.pressDown() }
        Item { width: 56; height: 56 }
    }
    CourtButton {
        anchors.horizontalCenter: parent.horizontalCenter
        implicitHeight: 48
        text: buttons.texts.takeBack
        name: text
        font.pixelSize: Theme.body
        onClicked: buttons.keyboard.pressTakeBack()
    }
}
