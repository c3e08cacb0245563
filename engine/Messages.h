// The sentences of the message line. Russian is the source language of the game's messages: its sentences are
// composed here, where the grammar of the team names is known; every other language fills its template from
// the string table.
#pragma once

#include "l10n/AppLanguage.h"
#include "l10n/Country.h"
#include "rules/MatchTypes.h"

#include <string>

namespace vorbel::messages {

[[nodiscard]] std::string aimingHint(AppLanguage language);
[[nodiscard]] std::string lockPower(AppLanguage language);
[[nodiscard]] std::string powerByKeys(AppLanguage language); // the power waits to be set by hand
[[nodiscard]] std::string ballInPlay(AppLanguage language);
[[nodiscard]] std::string aiAiming(AppLanguage language, BallColor side);

[[nodiscard]] std::string turn(AppLanguage language, BallColor side);
[[nodiscard]] std::string jackOut(AppLanguage language, BallColor nextSide);
[[nodiscard]] std::string newEndStart(AppLanguage language, int end, BallColor jackThrower);
[[nodiscard]] std::string tieBreak(AppLanguage language, int end, BallColor firstSide);

// What an end brought, in a sentence of its own: nothing, points for one side, or for both at equal distance.
[[nodiscard]] std::string endResult(AppLanguage language, const EndResult& result);
[[nodiscard]] std::string nextEndPrompt(AppLanguage language, const EndResult& result);

[[nodiscard]] std::string teamWinMatch(AppLanguage language, BallColor winner);
[[nodiscard]] std::string matchOver(AppLanguage language, int redScore, int blueScore); // of a decided match

[[nodiscard]] std::string tournamentRound(AppLanguage language, int round, Country opponent);
[[nodiscard]] std::string tournamentEliminated(AppLanguage language, int round);
[[nodiscard]] std::string tournamentChampion(AppLanguage language);

} // namespace vorbel::messages
