// A command's keys, whatever the keyboard's layout. One press is one command, unless repeats are wanted.
import QtQuick
import Vorbel

Item {
    id: command

    required property list<var> sequences
    property bool autoRepeat: false

    signal activated()

    Shortcut {
        sequences: command.sequences // qmllint disable
        enabled: command.enabled
        autoRepeat: command.autoRepeat
        onActivated: command.activated()
    }
    LatinKeys {
        sequences: command.sequences // qmllint disable
        enabled: command.enabled
        onActivated: command.activated()
    }
}
