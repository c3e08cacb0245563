// Colours and measures that the whole interface shares, in points.
pragma Singleton
import QtQuick

QtObject {
    readonly property color red: "#ff5247"
    readonly property color blue: "#4da3ff"
    readonly property color yellow: "#ffd60a"
    readonly property color orange: "#ff9f0a"
    readonly property color link: "#7db8ff"
    readonly property color panel: Qt.rgba(0, 0, 0, solidPanels ? 1 : 0.75)
    readonly property color shade: Qt.rgba(0, 0, 0, 0.45) // under a panel: all its texts stay legible over white
    readonly property color bar: "#16161f"
    readonly property color menu: "#22222e"
    readonly property color hairline: Qt.rgba(1, 1, 1, 0.1)

    readonly property int margin: 20
    readonly property int hudMargin: 6 // around the panels at the upper edge, which end above crowd and flags
    readonly property int padding: 20
    readonly property int gap: 8
    readonly property int pointsGap: 32 // between the sides' points, so that their names fit above them
    readonly property int radius: 14
    readonly property int buttonRadius: 6
    readonly property int ring: 4 // how far the focus ring lies outside of its control

    readonly property int caption: grown(13)
    readonly property int body: grown(15)
    readonly property int headline: grown(18)
    readonly property int sideTitle: grown(20)
    readonly property int title: grown(24)
    readonly property int hugeTitle: grown(42)

    property real textScale: 1 // by option: of all texts and what has to grow with them; the window sets it
    readonly property bool largeText: textScale > 1
    property bool solidPanels: false // by option: nothing shines through; the window sets it
    property real point: 1 // in pixels of the window, which sets it
    readonly property real thinLine: Math.max(1, 1 / point) // a pixel at least

    // Of the language of the player; the window follows it.
    property string fontFamily: Qt.application.font.family // qmllint disable

    function grown(size: real): int {
        return Math.round(size * textScale);
    }
    function white(opacity: real): color {
        return Qt.rgba(1, 1, 1, opacity);
    }
}
