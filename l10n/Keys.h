// The keys of every text of the program, in the order in which each language's files list them.
//
// A new key: list it in `pageKeys`, OptionKeys.h or SpokenKeys.h and give it a text in every file of extra/,
// options/ or spoken/. A key that ends in ".format" is a template; the code fills its placeholders "%@" from
// left to right, so every language has them in the same number and order. CONTRIBUTING.md says how a language
// is added.
//
// Texts of `keys` that a language lacks are shown in English; those of `extraKeys` are complete. A key that
// is unknown, given twice or out of order, an empty text, or a language listed twice does not compile.
#pragma once

#include "l10n/Joined.h"
#include "l10n/OptionKeys.h"
#include "l10n/SpokenKeys.h"

#include <array>
#include <string_view>

namespace vorbel::L10n {

// The texts of the game itself.
inline constexpr std::array<std::string_view, 113> keys{
    "team.red",
    "team.blue",
    "team.red.caps",
    "team.blue.caps",
    "label.score",
    "label.ballsLeft",
    "label.end",
    "menu.matchResult",
    "menu.nextRound",
    "menu.mainMenu",
    "label.end.format",
    "label.playingAs.format",
    "label.rampHint",
    "label.aiDifficulty",
    "label.throwPower",
    "label.aiToggle",

    "difficulty.easy",
    "difficulty.medium",
    "difficulty.hard",
    "difficulty.ultra",
    "menu.language",
    "menu.gameMenu",
    "menu.toggleFullScreen",
    "menu.rank.format",
    "menu.gamesNext.format",
    "menu.gamesMax.format",
    "menu.startGame",
    "menu.tournament",
    "menu.rules",
    "menu.about",
    "menu.exit",
    "menu.chooseCountry",
    "menu.play",
    "menu.sportClass",
    "menu.back",
    "menu.isRealAthlete",
    "menu.diary",

    "diary.totalXP.format",
    "diary.empty",
    "diary.win",
    "diary.loss",
    "diary.draw",
    "diary.entry.format",

    "bc.desc.bc1",
    "bc.desc.bc2",
    "bc.desc.bc3",
    "bc.desc.bc4",

    "rank.novice",
    "rank.thirdYouth",
    "rank.secondYouth",
    "rank.firstYouth",
    "rank.thirdRank",
    "rank.secondRank",
    "rank.firstRank",
    "rank.cms",
    "rank.ms",

    "msg.initial",
    "msg.aimingHint",
    "msg.lockPower",
    "msg.ballInPlay",
    "msg.turn.format",
    "msg.endWon.format",
    "msg.endDraw",
    "msg.matchDraw",
    "msg.teamWinMatch.format",
    "msg.matchOver.format",
    "msg.nextEndPrompt.format",
    "msg.newEndStart.format",
    "msg.jackOut.format",
    "msg.tieBreak.format",
    "msg.aiAiming.format",
    "msg.tournamentRound.format",
    "msg.tournamentEliminated.format",
    "msg.tournamentChampion.format",

    "country.france",
    "country.germany",
    "country.thailand",
    "country.brazil",
    "country.japan",
    "country.southKorea",
    "country.greatBritain",
    "country.portugal",
    "country.china",
    "country.belgium",
    "country.croatia",
    "country.czechRepublic",
    "country.greece",
    "country.hungary",
    "country.netherlands",
    "country.poland",
    "country.slovakia",
    "country.spain",
    "country.ukraine",
    "country.hongKong",
    "country.indonesia",
    "country.malaysia",
    "country.singapore",
    "country.israel",
    "country.argentina",
    "country.bermuda",
    "country.canada",
    "country.colombia",
    "country.ecuador",
    "country.elSalvador",
    "country.mexico",
    "country.peru",
    "country.egypt",
    "country.southAfrica",
    "country.tunisia",
    "country.australia",
    "country.russia",

    "rules.text",
    "about.text",
};

// What is said beyond those: on the game's pages and its screens, ...
inline constexpr auto pageKeys = std::to_array<std::string_view>({
    "end.equidistant.format",
    "hud.tournament.format",
    "about.pages",
    "notice.endedBadly.format",

    "page.boccia.title",
    "page.boccia.text",
    "page.licence",
});

// ... by the options, and aloud.
inline constexpr auto extraKeys = joined(pageKeys, optionKeys, spokenKeys);

} // namespace vorbel::L10n
