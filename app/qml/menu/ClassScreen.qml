// Which sport class the player plays in.
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Vorbel

MenuBackdrop {
    id: screen

    required property MenuModel menu

    readonly property MenuChoices choices: menu.choices

    ScreenTitle {
        text: screen.menu.texts.sportClass
    }
    RowLayout {
        spacing: Theme.gap
        Layout.alignment: Qt.AlignHCenter
        Accessible.role: Accessible.Grouping
        Accessible.name: screen.menu.texts.sportClass

        Repeater {
            model: screen.choices.sportClasses

            ClassButton {
                id: sportClass

                required property int index
                required property string modelData

                text: modelData
                selected: index === screen?.choices.classIndex // a closing screen goes first
                Accessible.description: screen?.choices.classDescriptions[index] ?? ""
                onClicked: screen.choices.classIndex = sportClass.index
            }
        }
    }
    // As high as the longest description, so that the buttons stay in their place.
    Item {
        Layout.preferredWidth: Theme.grown(520)
        Layout.preferredHeight: Theme.grown(72)
        Layout.alignment: Qt.AlignHCenter

        Label {
            width: parent.width
            text: screen.choices.classDescription
            color: Theme.white(0.85)
            font.pixelSize: Theme.caption
            lineHeight: 1.2
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }
    }
    MenuButton {
        focus: true
        text: screen.menu.texts.play
        onClicked: screen.menu.play()
    }
    MenuButton {
        text: screen.menu.texts.back
        Layout.topMargin: Theme.gap - screen.spacing
        onClicked: screen.menu.back()
    }
}
