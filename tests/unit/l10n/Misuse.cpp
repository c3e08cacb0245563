// Compiles only with CORRECT defined; each other macro makes one mistake in the lists of texts.
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

constexpr Table misused = tableOf(languages);

} // namespace vorbel::L10n
