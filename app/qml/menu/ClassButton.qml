// A sport class.
import QtQuick
import Vorbel

ChoiceButton {
    implicitWidth: Theme.grown(60)
    padding: 8
    font.pixelSize: Theme.headline
    font.bold: true
}
