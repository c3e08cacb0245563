// A line of text that is read out as it stands.
import QtQuick
import Vorbel

Text {
    color: "white"
    font.family: Theme.fontFamily
    font.pixelSize: Theme.body
    textFormat: Text.PlainText
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.ignored: !enabled // the display while the menu is open
}
