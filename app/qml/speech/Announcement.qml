// Nobody sees it; screen readers say its name when the announcer tells of it. It is there only while speech is on.
import QtQuick
import Vorbel

Item {
    id: announcement

    required property Announcer modelData

    visible: false
    Accessible.role: Accessible.Notification
    Accessible.name: modelData.text
    Component.onCompleted: modelData.announceThrough(announcement)
}
