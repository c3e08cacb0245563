// Nobody sees it; screen readers say its name when the announcer tells of it.
import QtQuick
import Vorbel

Item {
    id: announcement

    required property Announcer announcer

    visible: false
    Accessible.role: Accessible.Notification
    Accessible.name: announcer.text
    Component.onCompleted: announcer.announceThrough(announcement)
}
