// A text of several paragraphs; it scrolls when it does not fit into the height.
import QtQuick
import QtQuick.Templates as T
import Vorbel

Flickable {
    id: view

    required property string text
    required property real maximumWidth
    required property real maximumHeight

    implicitWidth: Math.min(Theme.grown(760), maximumWidth)
    implicitHeight: Math.min(contentHeight, maximumHeight)
    contentWidth: width
    contentHeight: label.implicitHeight
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    activeFocusOnTab: contentHeight > height || activeFocus // must not end while it has the focus

    T.ScrollBar.vertical: SlimScrollBar {}
    Keys.forwardTo: [keys]

    ScrollKeys {
        id: keys
        target: view
    }
    Label {
        id: label
        width: view.width - Theme.padding
        text: view.text
        color: Theme.white(0.9)
        lineHeight: 1.25
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignLeft
    }
    FocusRing {
        parent: view
        anchors.margins: 0
        shown: view.activeFocus
        radius: Theme.buttonRadius
    }
}
