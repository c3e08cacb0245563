// Which country the player plays for.
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Vorbel

MenuBackdrop {
    id: screen

    required property MenuModel menu

    readonly property MenuChoices choices: menu.choices

    ScreenTitle {
        text: screen.menu.texts.chooseCountry
    }
    Flickable {
        id: view

        readonly property bool switchGroup: true

        contentWidth: width
        contentHeight: grid.height + 2 * grid.y
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        Layout.preferredWidth: Theme.grown(560)
        Layout.preferredHeight: 320
        Layout.alignment: Qt.AlignHCenter
        Accessible.role: Accessible.Grouping
        Accessible.name: screen.menu.texts.chooseCountry

        T.ScrollBar.vertical: SlimScrollBar {}

        ScrollKeys {
            id: keys
            target: view
        }
        Grid {
            id: grid

            readonly property real cellWidth: (view.width - 2 * Theme.padding - (columns - 1) * spacing) / columns

            x: Theme.padding
            y: 6 // at both ends seven rows fill the height
            columns: 3
            spacing: Theme.gap

            Repeater {
                model: screen.choices.countries

                CountryButton {
                    id: country

                    required property int index
                    required property string modelData

                    width: grid.cellWidth
                    text: modelData
                    flag: screen?.choices.flags[index] ?? "" // a closing screen goes first
                    selected: index === screen?.choices.countryIndex
                    focus: selected
                    Keys.forwardTo: [keys]
                    onClicked: screen.choices.countryIndex = country.index
                    onActiveFocusChanged: if (activeFocus)
                        keys.shown = country
                }
            }
        }
    }
    MenuButton {
        text: screen.menu.texts.play
        onClicked: screen.menu.chooseClass()
    }
    MenuButton {
        text: screen.menu.texts.back
        Layout.topMargin: Theme.gap - screen.spacing
        onClicked: screen.menu.back()
    }
}
