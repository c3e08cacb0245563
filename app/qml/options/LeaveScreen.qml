// The question before a match is left. To stay is the answer at hand.
import QtQuick
import QtQuick.Layouts
import Vorbel

MenuBackdrop {
    id: screen

    required property LeaveQuestion leaving

    ScreenTitle {
        text: screen.leaving.question
        wrapMode: Text.Wrap
        Layout.maximumWidth: screen.availableWidth
    }
    MenuButton {
        focus: true
        text: screen.leaving.cancelTitle
        onClicked: screen.leaving.cancel()
    }
    MenuButton {
        text: screen.leaving.leaveTitle
        Layout.topMargin: Theme.gap - screen.spacing
        onClicked: screen.leaving.leave()
    }
}
