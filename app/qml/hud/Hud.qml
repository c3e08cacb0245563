// The heads-up display over the arena.
pragma ComponentBehavior: Bound
import QtQuick
import Vorbel

Item {
    id: display

    required property ContentView view
    readonly property HudModel hud: view.hud
    readonly property PlayerSettings settings: view.settings

    // Narrower than the gap between the waiting balls at the lower edge, whose place follows the window's height.
    // Large texts take all the room that there is, but for the buttons on the court.
    readonly property real besideButtons: view.options.courtButtons ? 2 * (Theme.grown(150) + Theme.margin) : 0
    readonly property real lowerWidth: Theme.largeText ? width - 2 * Theme.margin - besideButtons
                                                       : Math.min(width - 2 * Theme.margin, 0.9 * height)
    readonly property real middleWidth: width - 2 * (Math.max(red.width, blue.width) + 2 * Theme.hudMargin)

    SidePanel {
        id: red
        anchors { left: parent.left; top: parent.top; margins: Theme.hudMargin }
        title: display.hud.redTitle
        sideColor: Theme.red
        scoreLabel: display.hud.scoreLabel
        score: display.hud.redScore
        ballsLeftLabel: display.hud.ballsLeftLabel
        ballsLeft: display.hud.redBallsLeft
        aiLabel: display.hud.aiToggleLabel
        aiOn: display.settings.redAIOn
        hasTurn: display.hud.redOnTurn
        rightToLeft: display.hud.rightToLeft
        onAiToggled: on => display.settings.redAIOn = on
    }
    MatchPanel {
        anchors { horizontalCenter: parent.horizontalCenter; top: parent.top }
        anchors.topMargin: Theme.largeText ? Math.max(red.height, blue.height) + 2 * Theme.hudMargin : Theme.hudMargin
        hud: display.hud
        difficultyIndex: display.settings.difficultyIndex
        maximumWidth: Theme.largeText ? display.width - 2 * Theme.hudMargin : display.middleWidth
        onDifficultyChosen: index => display.settings.difficultyIndex = index
    }
    SidePanel {
        id: blue
        anchors { right: parent.right; top: parent.top; margins: Theme.hudMargin }
        title: display.hud.blueTitle
        sideColor: Theme.blue
        scoreLabel: display.hud.scoreLabel
        score: display.hud.blueScore
        ballsLeftLabel: display.hud.ballsLeftLabel
        ballsLeft: display.hud.blueBallsLeft
        aiLabel: display.hud.aiToggleLabel
        aiOn: display.settings.blueAIOn
        hasTurn: display.hud.blueOnTurn
        rightToLeft: display.hud.rightToLeft
        onAiToggled: on => display.settings.blueAIOn = on
    }
    Repeater {
        model: display.view.options.courtButtons ? 1 : 0

        CourtButtons {
            anchors { right: parent?.right; margins: Theme.margin }
            anchors.verticalCenter: Theme.largeText ? undefined : parent?.verticalCenter
            anchors.bottom: Theme.largeText ? parent?.bottom : undefined
            keyboard: display.view.keyboard
            texts: display.view.menu.texts
            options: display.view.options
        }
    }
    Column {
        anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom; bottomMargin: Theme.margin }
        spacing: Theme.gap

        SoundNote {
            anchors.horizontalCenter: parent.horizontalCenter
            note: display.view.soundNotes.note
        }
        SwitchPrompt {
            anchors.horizontalCenter: parent.horizontalCenter
            prompt: display.view.menu.open ? "" : display.view.oneSwitch.prompt
        }
        PowerBar {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: display.hud.powerShown
            caption: display.hud.powerCaption
            power: display.hud.power
            maximumWidth: display.lowerWidth
        }
        MessageLine {
            anchors.horizontalCenter: parent.horizontalCenter
            message: display.hud.message
            maximumWidth: display.lowerWidth
        }
    }
}
