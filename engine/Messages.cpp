#include "engine/Messages.h"

#include "career/Tournament.h"
#include "l10n/L10n.h"
#include "rules/Scoring.h"

#include <initializer_list>
#include <string_view>

namespace vorbel::messages {

namespace {

using Arguments = std::initializer_list<std::string_view>;

struct Sentence {
    std::string_view format;
    Arguments arguments;
};

// The Russian sentence as it stands here, or the table's template of that key in any other language.
std::string say(AppLanguage language, const Sentence& russian, TextKey key, Arguments arguments = {}) {
    return language == AppLanguage::ru ? L10n::fill(russian.format, russian.arguments)
                                       : L10n::fill(L10n::t(key, language), arguments);
}

std::string_view team(AppLanguage language, BallColor side) {
    return side == BallColor::red ? L10n::t("team.red", language) : L10n::t("team.blue", language);
}

std::string_view nominative(BallColor side) {
    return side == BallColor::red ? "Красные" : "Синие";
}
std::string_view genitive(BallColor side) {
    return side == BallColor::red ? "Красных" : "Синих";
}
std::string_view dative(BallColor side) {
    return side == BallColor::red ? "красным" : "синим";
}

std::string rounds() {
    return std::to_string(tournamentRounds);
}

} // namespace

std::string aimingHint(AppLanguage language) {
    return say(language, {"Стрелки [←][→] и [↑][↓] для прицела. [ПРОБЕЛ] - ок.", {}}, "msg.aimingHint");
}

std::string lockPower(AppLanguage language) {
    return say(language, {"[ПРОБЕЛ] Зафиксировать силу броска", {}}, "msg.lockPower");
}

std::string powerByKeys(AppLanguage language) {
    return std::string(L10n::t("aim.powerByKeys", language));
}

std::string ballInPlay(AppLanguage language) {
    return say(language, {"Мяч в игре...", {}}, "msg.ballInPlay");
}

std::string aiAiming(AppLanguage language, BallColor side) {
    return say(language, {"ИИ (%@) целится...", {nominative(side)}}, "msg.aiAiming.format",
               {team(language, side)});
}

std::string turn(AppLanguage language, BallColor side) {
    return say(language, {"Ход %@. [ПРОБЕЛ] для прицела", {genitive(side)}}, "msg.turn.format",
               {team(language, side)});
}

std::string jackOut(AppLanguage language, BallColor nextSide) {
    return say(language,
               {"Кон в недопустимой зоне! Ход переходит %@. [ПРОБЕЛ] для прицела", {dative(nextSide)}},
               "msg.jackOut.format", {team(language, nextSide)});
}

std::string newEndStart(AppLanguage language, int end, BallColor jackThrower) {
    const std::string number = std::to_string(end);
    return say(language, {"Начат Энд %@. Ход %@. [ПРОБЕЛ] для прицела", {number, genitive(jackThrower)}},
               "msg.newEndStart.format", {number, team(language, jackThrower)});
}

std::string tieBreak(AppLanguage language, int end, BallColor firstSide) {
    const std::string number = std::to_string(end);
    return say(language,
               {"Ничья в матче! Доп. энд %@: кон установлен в центре. Ход %@. [ПРОБЕЛ] для прицела",
                {number, genitive(firstSide)}},
               "msg.tieBreak.format", {number, team(language, firstSide)});
}

std::string endResult(AppLanguage language, const EndResult& result) {
    const std::string red = std::to_string(result.red);
    const std::string blue = std::to_string(result.blue);
    if (result.red > 0 && result.blue > 0) {
        return L10n::fill(L10n::t("end.equidistant.format", language), {red, blue});
    }
    if (result.red == 0 && result.blue == 0) {
        return say(language, {"Ничья в энде!", {}}, "msg.endDraw");
    }
    const BallColor winner = result.red > 0 ? BallColor::red : BallColor::blue;
    const std::string& points = result.red > 0 ? red : blue;
    return say(language, {"%@ взяли энд! Очков: %@.", {nominative(winner), points}}, "msg.endWon.format",
               {team(language, winner), points});
}

std::string nextEndPrompt(AppLanguage language, const EndResult& result) {
    const std::string outcome = endResult(language, result);
    return say(language, {"%@ [ПРОБЕЛ] для следующего энда", {outcome}}, "msg.nextEndPrompt.format",
               {outcome});
}

std::string teamWinMatch(AppLanguage language, BallColor winner) {
    const bool red = winner == BallColor::red;
    return say(language, {red ? "КРАСНЫЕ ВЫИГРАЛИ МАТЧ!" : "СИНИЕ ВЫИГРАЛИ МАТЧ!", {}},
               "msg.teamWinMatch.format", {team(language, winner)});
}

std::string matchOver(AppLanguage language, int redScore, int blueScore) {
    const std::string winner = teamWinMatch(language, vorbel::winner({redScore, blueScore}));
    const std::string red = std::to_string(redScore);
    const std::string blue = std::to_string(blueScore);
    return say(language, {"%@ Счет %@:%@. [ПРОБЕЛ] для новой игры", {winner, red, blue}},
               "msg.matchOver.format", {winner, red, blue});
}

std::string tournamentRound(AppLanguage language, int round, Country opponent) {
    const std::string number = std::to_string(round);
    const std::string_view country = L10n::t(key(opponent), language);
    const std::string_view level = L10n::t(key(tournamentDifficulty(round)), language);
    return say(
        language,
        {"Турнир, раунд %@/%@! Соперник: %@ (%@). [ПРОБЕЛ] для прицела", {number, rounds(), country, level}},
        "msg.tournamentRound.format", {number, rounds(), country, level});
}

std::string tournamentEliminated(AppLanguage language, int round) {
    const std::string number = std::to_string(round);
    return say(language,
               {"Турнир окончен: вылет в раунде %@/%@. [ПРОБЕЛ] для новой игры", {number, rounds()}},
               "msg.tournamentEliminated.format", {number, rounds()});
}

std::string tournamentChampion(AppLanguage language) {
    return say(language, {"ЧЕМПИОН ТУРНИРА! Вы выиграли все %@ раунда! [ПРОБЕЛ] для новой игры", {rounds()}},
               "msg.tournamentChampion.format", {rounds()});
}

} // namespace vorbel::messages
