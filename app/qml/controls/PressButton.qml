// A button that mouse, Return and assistive technology press; Space belongs to the game.
import QtQuick
import QtQuick.Templates as T
import Vorbel

T.Button {
    id: control

    implicitWidth: contentItem.implicitWidth + leftPadding + rightPadding
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    focusPolicy: Qt.TabFocus

    // Called by assistive technology; a handler of the signal would list the action once more.
    function accessiblePressAction() {
        clicked();
    }

    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.name: text

    contentItem: ButtonText {
        text: control.text
        color: "white"
        font: control.font
    }
    background: ButtonGround {
        selected: false
        pressed: control.down
        hovered: control.hovered
        focused: control.activeFocus
    }
}
