// By option: the name of the sound that is heard.
import QtQuick
import Vorbel

Panel {
    id: panel

    required property string note

    visible: note.length > 0

    Label {
        text: "♪ " + panel.note
        font.pixelSize: Theme.headline
        Accessible.ignored: true // who needs it spoken hears it
    }
}
