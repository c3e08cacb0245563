#include "app/hud/HudModel.h"

#include "app/text/Texts.h"
#include "career/Tournament.h"

namespace vorbel {

namespace {

QString tournamentLine(const GameLogic& match) {
    if (!match.tournamentActive) {
        return {};
    }
    const AppLanguage language = match.language;
    const int round = match.tournamentRound;
    return text("hud.tournament.format", language,
                {L10n::t("menu.tournament", language), std::to_string(round),
                 std::to_string(tournamentRounds), L10n::t(key(match.blueCountry), language),
                 L10n::t(key(tournamentDifficulty(round)), language)});
}

} // namespace

void HudModel::refresh(const GameLogic& match, Country country, BocciaClass sportClass) {
    if (const Gauge gauge{match.aimState == AimState::aimingPower, match.aimPower}; gauge != gauge_) {
        gauge_ = gauge;
        emit powerChanged();
    }
    if (language_ != match.language || difficultyTitles_.isEmpty()) {
        language_ = match.language;
        difficultyTitles_.clear();
        for (const AIDifficulty difficulty : allDifficulties) {
            difficultyTitles_.append(text(key(difficulty), language_));
        }
        emit languageChanged();
    }
    if (Contents contents = contentsOf(match, country, sportClass); contents != contents_) {
        contents_ = std::move(contents);
        emit changed();
    }
}

HudModel::Contents HudModel::contentsOf(const GameLogic& match, Country country,
                                        BocciaClass sportClass) const {
    const AppLanguage language = match.language;
    const std::string end = std::to_string(match.currentEnd);
    const std::string_view countryName = L10n::t(key(country), language);
    const bool underWay = match.phase == GamePhase::throwingJack || match.phase == GamePhase::playing;
    return {
        .redTitle = text("team.red.caps", language),
        .blueTitle = text("team.blue.caps", language),
        .scoreLabel = text("label.score", language),
        .ballsLeftLabel = text("label.ballsLeft", language),
        .aiToggleLabel = text("label.aiToggle", language),
        .end = text("label.end.format", language, {end}),
        .tournament = tournamentLine(match),
        .playingAs = text("label.playingAs.format", language, {countryName, rawValue(sportClass)}),
        .rampHint = sportClass == BocciaClass::bc3 ? text("label.rampHint", language) : QString(),
        .difficultyCaption = text("label.aiDifficulty", language),
        .message = QString::fromStdString(wording_(match.message)),
        .powerCaption = text("label.throwPower", language),
        .redScore = match.redScore,
        .blueScore = match.blueScore,
        .redBallsLeft = match.redBallsLeft,
        .blueBallsLeft = match.blueBallsLeft,
        .redOnTurn = underWay && match.currentTurn == BallColor::red,
        .blueOnTurn = underWay && match.currentTurn == BallColor::blue,
    };
}

} // namespace vorbel
