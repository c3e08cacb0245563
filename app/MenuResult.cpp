#include "app/MenuResult.h"

#include "app/ContentView.h"
#include "app/Texts.h"
#include "career/Tournament.h"

namespace vorbel {

namespace {

bool leadsToNextRound(const GameLogic& match) {
    return match.tournamentActive && match.redScore > match.blueScore &&
           match.tournamentRound < tournamentRounds;
}

} // namespace

MenuResult::MenuResult(ContentView& view) : view_(view) {
    connect(&view_, &ContentView::menuScreenChanged, this, &MenuResult::look);
    connect(&view_, &ContentView::languageChanged, this, &MenuResult::look);
    connect(&view_, &ContentView::refreshed, this, &MenuResult::look);
}

void MenuResult::look() {
    if (view_.menuScreen() != MenuScreen::matchResult) {
        return;
    }
    if (Contents contents = currentContents(); contents != contents_) {
        contents_ = std::move(contents);
        emit changed();
    }
}

MenuResult::Contents MenuResult::currentContents() const {
    const GameLogic& match = view_.gameLogic();
    const AppLanguage language = view_.selectedLanguage();
    Contents contents{
        .tournament = match.tournamentActive ? text("menu.tournament", language) : QString(),
        .title = text("menu.matchResult", language),
        .winner = QString::fromStdString(match.matchWinnerTitle()),
        .scoreLabel = text("label.score", language),
        .buttonLabel =
            leadsToNextRound(match) ? text("menu.nextRound", language) : text("menu.mainMenu", language),
        .redName = text("team.red", language),
        .blueName = text("team.blue", language),
        .ends = {},
        .redPoints = {},
        .bluePoints = {},
        .redScore = match.redScore,
        .blueScore = match.blueScore,
    };
    for (const EndResult& end : match.endHistory.get()) {
        contents.ends.append(QStringLiteral("%1 %2").arg(text("label.end", language)).arg(end.end));
        contents.redPoints.append(end.red);
        contents.bluePoints.append(end.blue);
    }
    return contents;
}

} // namespace vorbel
