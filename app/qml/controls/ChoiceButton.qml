// One of several choices, of which one is selected: a radio button that looks like the other buttons.
import QtQuick
import QtQuick.Templates as T
import Vorbel

T.RadioButton {
    id: control

    property bool selected: false

    readonly property color ink: selected ? "black" : "white"

    implicitWidth: contentItem.implicitWidth + leftPadding + rightPadding
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    focusPolicy: Qt.TabFocus
    checked: selected
    font.family: Theme.fontFamily
    font.pixelSize: Theme.caption
    font.bold: selected

    // Called by assistive technology; handlers of signals would list both actions once more.
    function accessiblePressAction() {
        clicked();
    }
    function accessibleToggleAction() {
        clicked();
    }

    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.name: text
    Accessible.ignored: !enabled // the display while the menu is open

    contentItem: ButtonText {
        text: control.text
        color: control.ink
        font: control.font
    }
    background: ButtonGround {
        selected: control.selected
        pressed: control.down
        hovered: control.hovered
        focused: control.activeFocus
    }
}
