// One option: its name, what it does, and what can be chosen. The first of a group stands under the group's name.
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Vorbel

ColumnLayout {
    id: row

    required property int index
    required property string heading
    required property string title
    required property string help
    required property bool isSwitch
    required property list<string> choices
    required property int chosen
    required property ScrollKeys scrollKeys

    signal picked(int place)

    spacing: Theme.gap
    Accessible.role: Accessible.Grouping
    Accessible.name: title
    Accessible.description: help

    Label {
        visible: row.heading.length > 0
        text: row.heading
        color: Theme.yellow
        font.pixelSize: Theme.headline
        font.bold: true
        Accessible.role: Accessible.Heading
        Layout.topMargin: row.index > 0 ? Theme.gap : 0
    }
    GridLayout {
        columns: Theme.largeText && !row.isSwitch ? 1 : 2
        columnSpacing: Theme.padding
        rowSpacing: Theme.gap
        Layout.fillWidth: true

        ColumnLayout {
            spacing: 2
            Layout.fillWidth: true

            Label {
                text: row.title
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignLeft
                Layout.fillWidth: true
            }
            Label {
                text: row.help
                color: Theme.white(0.7)
                font.pixelSize: Theme.caption
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignLeft
                Layout.fillWidth: true
            }
        }
        ToggleSwitch {
            id: toggle
            visible: row.isSwitch
            accessibleName: row.title
            on: row.chosen === 1
            tint: Theme.yellow
            Accessible.description: row.help
            Keys.forwardTo: [row.scrollKeys]
            onSwitched: on => row.picked(on ? 1 : 0)
            onActiveFocusChanged: if (activeFocus)
                row.scrollKeys.shown = row
        }
        RowLayout {
            visible: !row.isSwitch
            spacing: Theme.gap

            Repeater {
                model: row.isSwitch ? 0 : row.choices.length // one that only gets another text keeps the keyboard

                ChoiceButton {
                    id: choice

                    required property int index

                    text: row.choices[index] ?? ""
                    horizontalPadding: 12
                    verticalPadding: 5
                    selected: index === row.chosen
                    Accessible.description: row.title
                    Keys.forwardTo: [row.scrollKeys]
                    onClicked: row.picked(choice.index)
                    onActiveFocusChanged: if (activeFocus)
                        row.scrollKeys.shown = row
                }
            }
        }
    }
}
