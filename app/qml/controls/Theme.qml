// Colours and measures that the whole interface shares, in logical pixels.
pragma Singleton
import QtQuick

QtObject {
    readonly property color red: "#ff5247"
    readonly property color blue: "#4da3ff"
    readonly property color yellow: "#ffd60a"
    readonly property color orange: "#ff9f0a"
    readonly property color link: "#7db8ff"
    readonly property color panel: Qt.rgba(0, 0, 0, 0.75)
    readonly property color bar: "#16161f"
    readonly property color menu: "#22222e"
    readonly property color hairline: Qt.rgba(1, 1, 1, 0.1)

    readonly property int margin: 20
    readonly property int padding: 20
    readonly property int gap: 8
    readonly property int radius: 14
    readonly property int buttonRadius: 6
    readonly property int ring: 4 // how far the focus ring lies outside of its control

    readonly property int caption: 13
    readonly property int body: 15
    readonly property int headline: 18
    readonly property int title: 24
    readonly property int hugeTitle: 42

    property string fontFamily: Qt.application.font.family // of the player's language; the window follows it

    function white(opacity: real): color {
        return Qt.rgba(1, 1, 1, opacity);
    }
}
