// By option: everything that the game's keys do, for the mouse, a finger or assistive technology alone. Held, a button of
// the aim repeats.
import QtQuick
import Vorbel

Column {
    id: buttons

    required property Keyboard keyboard
    required property MenuTexts texts
    required property Options options

    readonly property int side: 56

    spacing: Theme.gap

    Grid {
        anchors.horizontalCenter: parent.horizontalCenter
        columns: 3
        horizontalItemAlignment: Grid.AlignHCenter
        spacing: Theme.gap
        LayoutMirroring.enabled: false // left is left on every court
        LayoutMirroring.childrenInherit: true

        Item { width: buttons.side; height: buttons.side }
        CourtButton { text: "↑"; name: buttons.texts.aimUp; autoRepeat: true; onClicked: buttons.keyboard.pressUp() }
        Leap { change: "+10"; needed: buttons.options.powerByHand; onClicked: buttons.keyboard.pressPageUp() }
        CourtButton { text: "←"; name: buttons.texts.aimLeft; autoRepeat: true; onClicked: buttons.keyboard.pressLeft() }
        CourtButton { text: buttons.texts.aimOk; name: text; font.pixelSize: 18; onClicked: buttons.keyboard.pressAction() }
        CourtButton { text: "→"; name: buttons.texts.aimRight; autoRepeat: true; onClicked: buttons.keyboard.pressRight() }
        Item { width: buttons.side; height: buttons.side }
        CourtButton { text: "↓"; name: buttons.texts.aimDown; autoRepeat: true; onClicked: buttons.keyboard.pressDown() }
        Leap { change: "−10"; needed: buttons.options.powerByHand; onClicked: buttons.keyboard.pressPageDown() }
    }
    Words { text: buttons.texts.takeBack; onClicked: buttons.keyboard.pressTakeBack() }
    Words {
        text: buttons.texts.everything
        visible: buttons.options.speech
        onClicked: buttons.keyboard.pressEverything()
    }

    // A quick change of a power that is set by hand; it keeps its place in the grid where it is not needed.
    component Leap: Item {
        id: leap

        required property bool needed
        required property string change // in percent

        signal clicked

        width: button.implicitHeight
        height: button.implicitHeight

        CourtButton {
            id: button
            text: "\u200E" + leap.change // its sign stands at the left in every script
            name: leap.change
            visible: leap.needed
            width: leap.width
            font.pixelSize: 18
            autoRepeat: true
            onClicked: leap.clicked()
        }
    }
    component Words: CourtButton {
        anchors.horizontalCenter: parent?.horizontalCenter
        implicitHeight: Math.max(48, contentItem.implicitHeight)
        name: text
        font.pixelSize: Theme.body
    }
}
