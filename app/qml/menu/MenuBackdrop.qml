// The dark ground of every screen of the menu, with the screen's content in its middle. What lies under it gets no
// mouse; the keyboard is with the screen, at first with the control to go on with. Large texts may need more than the
// window's height: then the whole screen scrolls, and follows the keyboard.
//
// A closed screen is destroyed first; what its Repeaters made follows one pass of the event loop later. A choice that
// is made in between still reaches their bindings, which therefore ask for "screen?.".
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Vorbel

FocusScope {
    id: backdrop

    default property alias content: column.data
    property alias spacing: column.spacing
    readonly property real availableWidth: width - 2 * Theme.margin
    readonly property real availableHeight: height - 2 * Theme.margin

    Component.onCompleted: forceActiveFocus(Qt.TabFocusReason)

    Rectangle {
        anchors.fill: parent
        color: Qt.rgba(0, 0, 0, 0.9)
    }
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        Accessible.ignored: true
        onWheel: wheel => wheel.accepted = true
    }
    Flickable {
        id: view
        anchors.fill: parent
        contentWidth: width
        contentHeight: column.height > height ? column.height + 2 * Theme.margin : height
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds

        T.ScrollBar.vertical: SlimScrollBar {}

        ScrollKeys {
            target: view
            shown: backdrop.activeFocus ? backdrop.Window.activeFocusItem : null
        }
        ColumnLayout {
            id: column
            anchors.centerIn: parent
            spacing: Theme.padding
        }
    }
}
