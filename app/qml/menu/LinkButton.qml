// A link that opens in the system's browser. Not a control of Qt's: those cannot be a link for assistive technology.
import QtQuick
import QtQuick.Layouts
import Vorbel

Text {
    id: link

    signal clicked()

    padding: 6
    color: hover.hovered ? "white" : Theme.link
    font.family: Theme.fontFamily
    font.pixelSize: Theme.body
    font.underline: true
    textFormat: Text.PlainText
    activeFocusOnTab: true
    Layout.alignment: Qt.AlignHCenter

    // Called by assistive technology; a handler of the signal would list the action once more.
    function accessiblePressAction() {
        clicked();
    }

    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.role: Accessible.Link
    Accessible.name: text

    HoverHandler {
        id: hover
        cursorShape: Qt.PointingHandCursor
    }
    TapHandler {
        onTapped: link.clicked()
    }
    FocusRing {
        shown: link.activeFocus
        anchors.margins: 0
        radius: Theme.buttonRadius
    }
}
