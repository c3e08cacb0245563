// A menu of the menu bar. While it is open it has the keyboard, and the game's keys rest.
import QtQuick
import QtQuick.Templates as T
import Vorbel

T.Menu {
    id: control

    required property bool mirroredLayout

    readonly property real widest: { // of its items
        let width = 0;
        for (let i = 0; i < count; ++i)
            width = Math.max(width, itemAt(i).implicitWidth);
        return width;
    }

    // With the first item chosen, as a menu opened without the mouse should be.
    function openFromKeyboard() {
        open();
        currentIndex = 0;
    }

    implicitWidth: Math.max(220, widest + leftPadding + rightPadding)
    implicitHeight: contentHeight + topPadding + bottomPadding
    margins: 0
    scale: Theme.point // it lies over the window, not in the bar
    onAboutToShow: transformOrigin = Item.TopLeft // its place is where it begins, in a mirrored bar too
    padding: 6

    contentItem: ListView {
        implicitHeight: contentHeight
        model: control.contentModel
        currentIndex: control.currentIndex
        interactive: false
        LayoutMirroring.enabled: control.mirroredLayout
        LayoutMirroring.childrenInherit: true

        Shortcut {
            sequences: ["Escape", "F10"]
            enabled: control.visible
            autoRepeat: false
            onActivated: control.close()
        }
    }
    background: Rectangle {
        color: Theme.menu
        radius: Theme.buttonRadius
        border.color: Theme.white(0.2)
    }
}
