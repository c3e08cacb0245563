// The athlete's diary, newest match first.
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Vorbel

MenuBackdrop {
    id: screen

    required property MenuModel menu

    readonly property MenuCareer career: menu.career

    ScreenTitle {
        text: screen.menu.texts.diary
    }
    Label {
        text: screen.career.totalXP
        color: Theme.yellow
        font.pixelSize: Theme.headline
        font.bold: true
        Layout.alignment: Qt.AlignHCenter
    }
    Label {
        visible: screen.career.diary.empty
        text: screen.menu.texts.diaryEmpty
        color: Theme.white(0.6)
        Layout.alignment: Qt.AlignHCenter
    }
    ListView {
        id: list
        visible: !screen.career.diary.empty
        model: screen.career.diary
        currentIndex: -1 // the list itself has the keyboard
        clip: true
        cacheBuffer: 0 // a row made ahead of its time lies on the first one until it gets its place
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: contentHeight > height || activeFocus
        Layout.preferredWidth: Theme.grown(480)
        Layout.preferredHeight: Math.min(contentHeight, screen.availableHeight - Theme.grown(240))
        Layout.alignment: Qt.AlignHCenter
        Accessible.role: Accessible.List
        Accessible.name: screen.menu.texts.diary

        T.ScrollBar.vertical: SlimScrollBar {}
        Keys.forwardTo: [keys]

        ScrollKeys {
            id: keys
            target: list
        }
        FocusRing {
            parent: list
            anchors.margins: 0
            shown: list.activeFocus
            radius: Theme.buttonRadius
        }

        delegate: DiaryRow {
            width: list.width
        }
    }
    MenuButton {
        focus: true
        text: screen.menu.texts.back
        onClicked: screen.menu.back()
    }
}
