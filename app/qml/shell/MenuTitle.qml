// The title of a menu in the menu bar.
import QtQuick
import QtQuick.Templates as T
import Vorbel

T.MenuBarItem {
    id: control

    readonly property bool switchTitle: true // one switch gets here though Tab does not

    function take() {
        menu.visible ? menu.close() : menu.open();
    }

    implicitHeight: Theme.grown(30)
    implicitWidth: contentItem.implicitWidth + leftPadding + rightPadding
    horizontalPadding: 14
    focusPolicy: Qt.NoFocus
    Accessible.name: text
    Accessible.onPressAction: take()

    contentItem: Text {
        text: control.text
        color: "white"
        font { family: control.font.family; pixelSize: Theme.caption }
        textFormat: Text.PlainText
        verticalAlignment: Text.AlignVCenter
    }
    background: Rectangle {
        color: control.menu !== null && control.menu.visible ? Theme.white(0.25)
                                                            : Theme.white(control.hovered ? 0.15 : 0)
    }
}
