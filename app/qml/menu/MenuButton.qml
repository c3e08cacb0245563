// A button of the main menu, or one that leads to another screen.
import QtQuick
import QtQuick.Layouts
import Vorbel

PressButton {
    implicitWidth: Theme.grown(260)
    padding: 10
    font.family: Theme.fontFamily
    font.pixelSize: Theme.headline
    font.weight: Font.DemiBold
    Layout.alignment: Qt.AlignHCenter
}
