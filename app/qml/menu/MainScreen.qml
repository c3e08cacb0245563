// The main menu.
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Vorbel

MenuBackdrop {
    id: screen

    required property MenuModel menu

    readonly property MenuTexts texts: menu.texts

    spacing: 16

    Image {
        source: screen.menu.logo
        visible: status === Image.Ready
        sourceSize {
            width: 128 * Theme.point * Screen.devicePixelRatio
            height: 96 * Theme.point * Screen.devicePixelRatio
        }
        fillMode: Image.PreserveAspectFit
        Layout.preferredHeight: 96
        Layout.preferredWidth: 128
        Layout.alignment: Qt.AlignHCenter
        Accessible.ignored: true
    }
    ScreenTitle {
        text: "VORBEL"
        font.pixelSize: Theme.hugeTitle
        font.weight: Font.Black
        font.letterSpacing: 8
        leftPadding: font.letterSpacing // the last letter is followed by the same space
        Layout.topMargin: -Theme.padding
    }
    GridLayout {
        id: languages

        readonly property bool switchGroup: true

        readonly property int columnWidth: Theme.grown(138)

        columns: Math.min(5, (screen.availableWidth + columnSpacing) / (columnWidth + columnSpacing))
        columnSpacing: Theme.gap
        rowSpacing: Theme.gap
        Layout.alignment: Qt.AlignHCenter
        Accessible.role: Accessible.Grouping
        Accessible.name: screen.texts.language

        Repeater {
            model: screen.menu.choices.languages

            LanguageButton {
                id: language

                required property int index
                required property string modelData

                text: modelData
                font.family: screen?.menu.choices.languageFonts[index] ?? Theme.fontFamily // a closing screen goes first
                selected: index === screen?.menu.choices.languageIndex
                Layout.preferredWidth: languages.columnWidth
                Layout.fillHeight: true
                onClicked: screen.menu.choices.languageIndex = language.index
            }
        }
    }
    ColumnLayout {
        spacing: 2
        Layout.alignment: Qt.AlignHCenter

        Label {
            text: screen.menu.career.rank
            font.pixelSize: Theme.headline
            font.bold: true
            Layout.alignment: Qt.AlignHCenter
        }
        Label {
            text: screen.menu.career.games
            color: Theme.white(0.7)
            font.pixelSize: Theme.caption
            Layout.alignment: Qt.AlignHCenter
        }
    }
    ToggleSwitch {
        text: screen.texts.isRealAthlete
        accessibleName: text
        on: screen.menu.career.isRealAthlete
        tint: Theme.yellow
        Layout.alignment: Qt.AlignHCenter
        onSwitched: on => screen.menu.career.isRealAthlete = on
    }
    ColumnLayout {
        spacing: Theme.gap
        Layout.alignment: Qt.AlignHCenter

        MenuButton {
            focus: true
            text: screen.texts.startGame
            onClicked: screen.menu.startGame()
        }
        MenuButton {
            text: screen.texts.tournament
            onClicked: screen.menu.startTournament()
        }
        MenuButton {
            text: screen.texts.diary
            visible: screen.menu.career.isRealAthlete
            onClicked: screen.menu.openDiary()
        }
        MenuButton {
            text: screen.texts.rules
            onClicked: screen.menu.openRules()
        }
        MenuButton {
            text: screen.texts.about
            onClicked: screen.menu.openAbout()
        }
        MenuButton {
            text: screen.menu.options.title
            visible: screen.menu.options.inMainMenu
            onClicked: screen.menu.options.open()
        }
        MenuButton {
            text: screen.texts.exit
            onClicked: screen.menu.quit()
        }
    }
}
