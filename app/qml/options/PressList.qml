// The keys, or the buttons, of one action: each is taken away by a press on it; the last place asks for another one.
pragma ComponentBehavior: Bound
import QtQuick
import Vorbel

Flow {
    id: presses

    required property string title // of the action
    required property list<string> names
    required property bool more
    required property bool waiting
    required property string addTitle
    required property string waitingTitle
    required property ScrollKeys scrollKeys
    required property Item shown // comes into view with the focus

    signal added()
    signal removed(int place)

    // One that was taken away cannot keep the keyboard.
    function focusOnMore() {
        next.forceActiveFocus(Qt.TabFocusReason);
    }

    spacing: Theme.gap

    Repeater {
        model: presses.names

        PressButton {
            id: press

            required property int index
            required property string modelData

            text: modelData
            horizontalPadding: 10
            verticalPadding: 5
            font.family: Theme.fontFamily
            font.pixelSize: Theme.caption
            Accessible.description: presses.title
            Keys.forwardTo: [presses.scrollKeys]
            onClicked: presses.removed(press.index)
            onActiveFocusChanged: if (activeFocus)
                presses.scrollKeys.shown = presses.shown
        }
    }
    PressButton {
        id: next
        visible: presses.more || activeFocus // until the keyboard goes on by itself
        text: presses.waiting ? presses.waitingTitle : "+"
        horizontalPadding: 10
        verticalPadding: 5
        font.family: Theme.fontFamily
        font.pixelSize: Theme.caption
        font.bold: presses.waiting
        Accessible.name: presses.waiting ? presses.waitingTitle : presses.addTitle
        Accessible.description: presses.title
        Keys.forwardTo: [presses.scrollKeys]
        onClicked: presses.added()
        onActiveFocusChanged: if (activeFocus)
            presses.scrollKeys.shown = presses.shown
    }
}
