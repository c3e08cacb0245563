// Shown only where there is more than fits.
import QtQuick
import QtQuick.Templates as T
import Vorbel

T.ScrollBar {
    id: bar

    implicitWidth: 10
    padding: 2
    minimumSize: 0.1
    visible: size < 1
    policy: T.ScrollBar.AlwaysOn
    focusPolicy: Qt.NoFocus
    Accessible.ignored: true

    contentItem: Rectangle {
        implicitWidth: 6
        radius: width / 2
        color: Theme.white(bar.pressed ? 0.6 : bar.hovered ? 0.45 : 0.3)
    }
}
