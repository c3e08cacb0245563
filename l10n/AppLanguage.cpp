#include "l10n/AppLanguage.h"

#include <algorithm>

namespace vorbel {

namespace {

struct Row {
    std::string_view rawValue;
    std::string_view displayName;
};

// In the order of AppLanguage.
constexpr std::array<Row, languageCount> rows{{
    {"ru", "Русский"},    {"en", "English"},  {"es", "Español"},          {"fr", "Français"},
    {"de", "Deutsch"},    {"it", "Italiano"}, {"pt", "Português"},        {"zh", "中文"},
    {"ja", "日本語"},     {"ko", "한국어"},   {"ar", "العربية"},          {"hi", "हिन्दी"},
    {"tr", "Türkçe"},     {"pl", "Polski"},   {"nl", "Nederlands"},       {"uk", "Українська"},
    {"vi", "Tiếng Việt"}, {"th", "ไทย"},      {"id", "Bahasa Indonesia"}, {"el", "Ελληνικά"},
}};

const Row& rowOf(AppLanguage language) {
    return rows[static_cast<std::size_t>(language)];
}

} // namespace

constexpr std::array<AppLanguage, languageCount> allLanguages = [] {
    std::array<AppLanguage, languageCount> all{};
    for (std::size_t i = 0; i < all.size(); ++i) {
        all[i] = static_cast<AppLanguage>(i);
    }
    return all;
}();

std::string_view rawValue(AppLanguage language) {
    return rowOf(language).rawValue;
}

std::string_view displayName(AppLanguage language) {
    return rowOf(language).displayName;
}

std::optional<AppLanguage> languageFromRawValue(std::string_view code) {
    const auto* const found =
        std::ranges::find_if(allLanguages, [&](AppLanguage l) { return rawValue(l) == code; });
    return found == allLanguages.end() ? std::nullopt : std::optional(*found);
}

} // namespace vorbel
