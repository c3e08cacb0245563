// A line between groups of commands.
import QtQuick
import QtQuick.Templates as T
import Vorbel

T.MenuSeparator {
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    horizontalPadding: 12
    verticalPadding: 5

    contentItem: Rectangle {
        implicitHeight: Theme.thinLine
        color: Theme.white(0.2)
    }
}
