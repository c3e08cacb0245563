// A command's keys, whatever the keyboard's layout. One press is one command.
import QtQuick
import Vorbel

Item {
    id: command

    required property list<var> sequences

    signal activated()

    Shortcut {
        sequences: command.sequences // qmllint disable
        enabled: command.enabled
        autoRepeat: false
        onActivated: command.activated()
    }
    LatinKeys {
        sequences: command.sequences // qmllint disable
        enabled: command.enabled
        onActivated: command.activated()
    }
}
