#include "app/options/LeaveQuestion.h"

#include "app/options/Options.h"
#include "app/screen/OpenMenu.h"
#include "app/settings/PlayerSettings.h"
#include "app/text/Texts.h"
#include "engine/GameLogic.h"

#include <QCoreApplication>

namespace vorbel {

LeaveQuestion::LeaveQuestion(const GameLogic& match, const Options& options, const PlayerSettings& settings,
                             OpenMenu& openMenu)
    : match_(match), options_(options), settings_(settings), openMenu_(openMenu) {
    connect(&settings_, &PlayerSettings::languageChanged, this, &LeaveQuestion::languageChanged);
}

QString LeaveQuestion::question() const {
    return text("leave.question", settings_.selectedLanguage());
}
QString LeaveQuestion::leaveTitle() const {
    return text("leave.leave", settings_.selectedLanguage());
}
QString LeaveQuestion::cancelTitle() const {
    return text("leave.cancel", settings_.selectedLanguage());
}

bool LeaveQuestion::isMatchUnderWay() const {
    const bool begun = match_.phase != GamePhase::throwingJack || match_.currentEnd > 1 ||
                       match_.currentTurn == BallColor::blue || match_.aimState == AimState::thrown;
    const bool humanPlays = !match_.redIsAI || !match_.blueIsAI;
    return begun && humanPlays && match_.phase != GamePhase::gameOver;
}

bool LeaveQuestion::mayClose() {
    if (answered_ || !options_.isOn(Option::askToLeave) || !isMatchUnderWay()) {
        return true;
    }
    if (openMenu_.menuScreen() != MenuScreen::leave) {
        askedAt_ = openMenu_.menuScreen();
        openMenu_.setMenuScreen(MenuScreen::leave);
    }
    return false;
}

void LeaveQuestion::cancel() {
    openMenu_.setMenuScreen(askedAt_);
}

void LeaveQuestion::leave() {
    answered_ = true;
    QCoreApplication::quit();
}

} // namespace vorbel
