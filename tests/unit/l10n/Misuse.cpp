// Compiles only with CORRECT defined; each other macro makes one mistake in the lists of texts, or at a call.
#include "l10n/L10n.h"
#include "l10n/Table.h"

namespace vorbel::L10n {

constexpr auto english = std::to_array<Text>({
    {"team.red", "Red"},
#if defined(DUPLICATE_KEY)
        {"team.red", "Crimson"},
#elif defined(OUT_OF_ORDER)
        {"label.end", "End"}, {"label.score", "Score:"},
#elif defined(UNKNOWN_KEY)
        {"team.green", "Green"},
#elif defined(EMPTY_TEXT)
        {"team.blue", ""},
#endif
});

constexpr auto languages = std::to_array<LanguageTexts>({
    {AppLanguage::en, english},
#if defined(DUPLICATE_LANGUAGE)
        {AppLanguage::en, english},
#endif
});

constexpr auto misused = tableOf(keys, languages);

#if defined(INCOMPLETE_EXTRA_TEXTS)
constexpr auto incomplete = complete(tableOf(keys, languages));
#endif

#if defined(UNKNOWN_KEY_AT_A_CALL)
const auto shown = t("menu.paly", AppLanguage::en);
#elif defined(RUNTIME_KEY_AT_A_CALL)
std::string_view show(const char* key) {
    return t(key, AppLanguage::en);
}
#else
const auto shown = t("menu.play", AppLanguage::en);
#endif

} // namespace vorbel::L10n
