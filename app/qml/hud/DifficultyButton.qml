// One level of the computer opponent.
import QtQuick
import Vorbel

ChoiceButton {
    implicitWidth: Math.max(contentItem.implicitWidth + leftPadding + rightPadding, 56)
    horizontalPadding: 8
    verticalPadding: 4
}
