// Something that the player has to be told, over everything else.
import QtQuick
import QtQuick.Layouts
import Vorbel

FocusScope {
    id: notice

    required property string text
    required property string closeTitle
    signal closeRequested

    visible: text.length > 0
    focus: visible

    Rectangle {
        anchors.fill: parent
        color: Theme.bar
    }
    MouseArea {
        anchors.fill: parent // what lies below gets no click
        hoverEnabled: true
    }
    ColumnLayout {
        anchors.centerIn: parent
        width: Math.min(parent.width - 4 * Theme.margin, 900)
        spacing: 2 * Theme.margin

        Label {
            Layout.fillWidth: true
            text: notice.text
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            Accessible.role: Accessible.AlertMessage
        }
        MenuButton {
            focus: true
            text: notice.closeTitle
            onClicked: notice.closeRequested()
            Keys.onEscapePressed: notice.closeRequested()
        }
    }
}
