// A country with its flag.
import QtQuick
import QtQuick.Layouts
import Vorbel

ChoiceButton {
    id: country

    required property string flag

    padding: 6

    contentItem: RowLayout {
        spacing: Theme.gap

        Text {
            text: country.flag
            font.pixelSize: Theme.headline
            textFormat: Text.PlainText
            Layout.leftMargin: 4
            Accessible.ignored: true
        }
        Text {
            text: country.text
            color: country.ink
            font: country.font
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 11
            textFormat: Text.PlainText
            horizontalAlignment: Text.AlignLeft
            Layout.fillWidth: true
            Accessible.ignored: true
        }
    }
}
