// Scrolls by keys what has the focus: the arrows belong to the game.
import QtQuick
import Vorbel

Item {
    id: keys

    required property Flickable target
    property Item shown: null // belongs to the target's content; is whole in view whenever one of the two changes

    function scrollTo(y: real) {
        const last = target.originY + Math.max(target.contentHeight - target.height, 0);
        target.contentY = Math.min(Math.max(y, target.originY), last);
    }
    // Moves as little as shows the item whole.
    function show() {
        if (shown === null)
            return;
        const top = shown.mapToItem(target.contentItem, 0, 0).y - Theme.ring;
        const bottom = top + shown.height + 2 * Theme.ring;
        scrollTo(Math.min(Math.max(target.contentY, bottom - target.height), top));
    }

    onShownChanged: show()

    Connections {
        target: keys.target

        function onHeightChanged() {
            keys.show();
        }
        function onContentHeightChanged() {
            keys.show();
        }
    }
    Keys.onPressed: event => {
        const page = target.height - 2 * Theme.padding;
        const goals = new Map([
            [Qt.Key_PageDown, target.contentY + page],
            [Qt.Key_PageUp, target.contentY - page],
            [Qt.Key_Home, -Infinity],
            [Qt.Key_End, Infinity]
        ]);
        event.accepted = goals.has(event.key);
        if (event.accepted)
            scrollTo(goals.get(event.key));
    }
}
