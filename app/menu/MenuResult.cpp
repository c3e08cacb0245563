#include "app/menu/MenuResult.h"

#include "app/screen/OpenMenu.h"
#include "app/settings/PlayerSettings.h"
#include "app/text/Texts.h"
#include "career/Tournament.h"
#include "engine/GameLogic.h"

namespace vorbel {

namespace {

bool leadsToNextRound(const GameLogic& match) {
    return match.tournamentActive && match.redScore > match.blueScore &&
           match.tournamentRound < tournamentRounds;
}

} // namespace

MenuResult::MenuResult(const GameLogic& match, const PlayerSettings& settings, const OpenMenu& menu)
    : match_(match), settings_(settings), menu_(menu) {
    connect(&menu_, &OpenMenu::menuScreenChanged, this, &MenuResult::refresh);
    connect(&settings_, &PlayerSettings::languageChanged, this, &MenuResult::refresh);
}

void MenuResult::refresh() {
    if (menu_.menuScreen() != MenuScreen::matchResult) {
        return;
    }
    if (Contents contents = currentContents(); contents != contents_) {
        contents_ = std::move(contents);
        emit changed();
    }
}

MenuResult::Contents MenuResult::currentContents() const {
    const AppLanguage language = settings_.selectedLanguage();
    Contents contents{
        .tournament = match_.tournamentActive ? text("menu.tournament", language) : QString(),
        .title = text("menu.matchResult", language),
        .winner = QString::fromStdString(match_.matchWinnerTitle()),
        .scoreLabel = text("label.score", language),
        .buttonLabel =
            leadsToNextRound(match_) ? text("menu.nextRound", language) : text("menu.mainMenu", language),
        .redName = text("team.red", language),
        .blueName = text("team.blue", language),
        .ends = {},
        .redPoints = {},
        .bluePoints = {},
        .redScore = match_.redScore,
        .blueScore = match_.blueScore,
    };
    for (const EndResult& end : match_.endHistory.get()) {
        contents.ends.append(QStringLiteral("%1 %2").arg(text("label.end", language)).arg(end.end));
        contents.redPoints.append(end.red);
        contents.bluePoints.append(end.blue);
    }
    return contents;
}

} // namespace vorbel
