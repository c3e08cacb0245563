// A language of the program, called by its own name.
import QtQuick
import Vorbel

ChoiceButton {
    horizontalPadding: 10
    verticalPadding: 5
}
