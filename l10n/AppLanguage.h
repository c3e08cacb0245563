// The twenty languages of the program.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace vorbel {

// In the order of the language picker.
enum class AppLanguage : std::uint8_t {
    ru,
    en,
    es,
    fr,
    de,
    it,
    pt,
    zh,
    ja,
    ko,
    ar,
    hi,
    tr,
    pl,
    nl,
    uk,
    vi,
    th,
    id,
    el
};

inline constexpr std::size_t languageCount = 20;

// The language of a player who has not chosen one yet: Russian, by design.
inline constexpr AppLanguage defaultLanguage = AppLanguage::ru;

extern const std::array<AppLanguage, languageCount> allLanguages;

// The two-letter code, as stored in the settings.
[[nodiscard]] std::string_view rawValue(AppLanguage language);

// The language of exactly that code; none for anything else.
[[nodiscard]] std::optional<AppLanguage> languageFromRawValue(std::string_view code);

// The language's own name for itself.
[[nodiscard]] std::string_view displayName(AppLanguage language);

} // namespace vorbel
