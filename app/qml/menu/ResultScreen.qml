// The result of a match, end by end.
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Vorbel

MenuBackdrop {
    id: screen

    required property MenuModel menu

    readonly property MenuResult result: menu.result

    Label {
        visible: text.length > 0
        text: screen.result.tournament
        color: Theme.orange
        font.pixelSize: Theme.headline
        font.weight: Font.Black
        Layout.alignment: Qt.AlignHCenter
    }
    ScreenTitle {
        text: screen.result.title
        Layout.topMargin: screen.result.tournament.length > 0 ? Theme.gap - screen.spacing : 0
    }
    Label {
        text: screen.result.winner
        color: Theme.yellow
        font.pixelSize: Theme.title
        font.bold: true
        Layout.alignment: Qt.AlignHCenter
    }
    ResultHeading {
        redName: screen.result.redName
        blueName: screen.result.blueName
        Layout.preferredWidth: total.implicitWidth
        Layout.alignment: Qt.AlignHCenter
        Layout.bottomMargin: Theme.gap - screen.spacing
    }
    ListView {
        id: ends
        model: screen.result.ends
        currentIndex: -1 // the list itself has the keyboard
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: contentHeight > height || activeFocus
        Layout.preferredWidth: total.implicitWidth
        Layout.preferredHeight: Math.min(contentHeight, 320)
        Layout.alignment: Qt.AlignHCenter

        T.ScrollBar.vertical: SlimScrollBar {}
        Keys.forwardTo: [keys]

        ScrollKeys {
            id: keys
            target: ends
        }

        delegate: ResultRow {
            required property int index
            required property string modelData

            width: ends.width
            label: modelData
            labelColor: Theme.white(0.6)
            red: screen?.result.redPoints[index] ?? 0 // a closing screen goes first
            blue: screen?.result.bluePoints[index] ?? 0
            redName: screen?.result.redName ?? ""
            blueName: screen?.result.blueName ?? ""
        }
    }
    ResultRow {
        id: total
        label: screen.result.scoreLabel
        red: screen.result.redScore
        blue: screen.result.blueScore
        redName: screen.result.redName
        blueName: screen.result.blueName
        redColor: Theme.red
        blueColor: Theme.blue
        heavy: true
        Layout.alignment: Qt.AlignHCenter

        Rectangle {
            width: parent.width
            height: Theme.thinLine
            color: Theme.white(0.25)
        }
    }
    MenuButton {
        focus: true
        text: screen.result.buttonLabel
        onClicked: screen.menu.goOn()
    }
}
