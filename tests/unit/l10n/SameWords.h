// Texts that a language truly shares with English, letter by letter. All else that equals the English text
// was forgotten; a listed key whose text differs is stale. Other scripts share nothing but "AI".
#pragma once

#include "l10n/AppLanguage.h"

#include <map>
#include <set>
#include <string_view>

namespace vorbel::test {

inline const std::map<AppLanguage, std::set<std::string_view>> sameAsEnglish{
    {AppLanguage::de,
     {"label.end", "difficulty.ultra", "country.thailand", "country.japan", "country.portugal",
      "country.china", "country.ukraine", "country.malaysia", "country.israel", "country.bermuda",
      "country.ecuador", "country.elSalvador", "country.peru", "options.controller", "options.seconds.format",
      "aim.ok"}},
    {AppLanguage::fr,
     {"difficulty.ultra", "rank.novice", "page.licence", "country.france", "country.portugal",
      "country.ukraine", "country.hongKong", "country.canada", "menu.options", "options.seconds.format",
      "button.triangle"}},
    {AppLanguage::es,
     {"difficulty.ultra", "country.portugal", "country.china", "country.hongKong", "country.indonesia",
      "country.israel", "country.argentina", "country.colombia", "country.ecuador", "country.elSalvador",
      "country.australia", "options.seconds.format"}},
    {AppLanguage::it,
     {"difficulty.ultra", "country.hongKong", "country.indonesia", "country.malaysia", "country.singapore",
      "country.argentina", "country.bermuda", "country.canada", "country.colombia", "country.ecuador",
      "country.elSalvador", "country.tunisia", "country.australia", "country.russia", "options.controller",
      "options.seconds.format"}},
    {AppLanguage::pt,
     {"difficulty.ultra", "country.portugal", "country.china", "country.hongKong", "country.israel",
      "country.argentina", "country.elSalvador", "country.peru", "options.seconds.format"}},
    {AppLanguage::nl,
     {"label.end", "label.aiToggle", "difficulty.ultra", "country.thailand", "country.japan",
      "country.portugal", "country.china", "country.singapore", "country.bermuda", "country.canada",
      "country.colombia", "country.ecuador", "country.elSalvador", "country.mexico", "country.peru",
      "aim.ok"}},
    {AppLanguage::ja, {"label.aiToggle"}},
    {AppLanguage::ko, {"label.aiToggle"}},
    {AppLanguage::th, {"label.aiToggle"}},
    {AppLanguage::vi,
     {"country.brazil", "country.croatia", "country.hungary", "country.slovakia", "country.ukraine",
      "country.indonesia", "country.malaysia", "country.singapore", "country.israel", "country.argentina",
      "country.bermuda", "country.canada", "country.colombia", "country.ecuador", "country.elSalvador",
      "country.mexico", "country.peru", "country.tunisia"}},
    {AppLanguage::id,
     {"label.end", "label.aiToggle", "country.thailand", "country.portugal", "country.hongKong",
      "country.indonesia", "country.malaysia", "country.israel", "country.argentina", "country.bermuda",
      "country.elSalvador", "country.peru", "country.tunisia", "country.australia", "aim.ok"}},
    {AppLanguage::tr,
     {"difficulty.ultra", "country.hongKong", "country.bermuda", "country.elSalvador", "country.peru"}},
    {AppLanguage::pl,
     {"label.end", "difficulty.ultra", "country.peru", "country.australia", "options.seconds.format",
      "aim.ok"}},
};

} // namespace vorbel::test
