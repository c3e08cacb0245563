// One action with its keys and its buttons.
import QtQuick
import QtQuick.Layouts
import Vorbel

RowLayout {
    id: row

    required property int index
    required property string title
    required property list<string> keyNames
    required property list<string> buttonNames
    required property bool moreKeys
    required property bool moreButtons
    required property bool awaitsKey
    required property bool awaitsButton
    required property ControlsModel controls
    required property ScrollKeys scrollKeys
    required property real columnWidth // of keys, and of buttons

    spacing: Theme.padding
    Accessible.role: Accessible.Grouping
    Accessible.name: title

    Label {
        text: row.title
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignLeft
        Layout.fillWidth: true
    }
    PressList {
        title: row.title
        names: row.keyNames
        more: row.moreKeys
        waiting: row.awaitsKey
        addTitle: row.controls.addKeyTitle
        waitingTitle: row.controls.pressKeyTitle
        scrollKeys: row.scrollKeys
        shown: row
        Layout.preferredWidth: row.columnWidth
        onAdded: row.controls.addKey(row.index)
        onRemoved: place => {
            row.controls.removeKey(row.index, place);
            focusOnMore();
        }
    }
    PressList {
        title: row.title
        names: row.buttonNames
        more: row.moreButtons
        waiting: row.awaitsButton
        addTitle: row.controls.addButtonTitle
        waitingTitle: row.controls.pressButtonTitle
        scrollKeys: row.scrollKeys
        shown: row
        Layout.preferredWidth: row.columnWidth
        onAdded: row.controls.addButton(row.index)
        onRemoved: place => {
            row.controls.removeButton(row.index, place);
            focusOnMore();
        }
    }
}
