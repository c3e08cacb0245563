// The text in the middle of a button; the button itself is what is read out.
import QtQuick

Text {
    textFormat: Text.PlainText
    horizontalAlignment: Text.AlignHCenter
    verticalAlignment: Text.AlignVCenter
    Accessible.ignored: true
}
