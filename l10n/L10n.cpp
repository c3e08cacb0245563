#include "l10n/L10n.h"

#include "l10n/Table.h"
#include "l10n/texts/ar.h"
#include "l10n/texts/de.h"
#include "l10n/texts/el.h"
#include "l10n/texts/en.h"
#include "l10n/texts/es.h"
#include "l10n/texts/fr.h"
#include "l10n/texts/hi.h"
#include "l10n/texts/id.h"
#include "l10n/texts/it.h"
#include "l10n/texts/ja.h"
#include "l10n/texts/ko.h"
#include "l10n/texts/nl.h"
#include "l10n/texts/pl.h"
#include "l10n/texts/pt.h"
#include "l10n/texts/ru.h"
#include "l10n/texts/th.h"
#include "l10n/texts/tr.h"
#include "l10n/texts/uk.h"
#include "l10n/texts/vi.h"
#include "l10n/texts/zh.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>
#include <optional>

namespace vorbel::L10n {

namespace {

constexpr auto languages = std::to_array<LanguageTexts>({
    {AppLanguage::ru, texts::ru}, {AppLanguage::en, texts::en}, {AppLanguage::es, texts::es},
    {AppLanguage::fr, texts::fr}, {AppLanguage::de, texts::de}, {AppLanguage::it, texts::it},
    {AppLanguage::pt, texts::pt}, {AppLanguage::zh, texts::zh}, {AppLanguage::ja, texts::ja},
    {AppLanguage::ko, texts::ko}, {AppLanguage::ar, texts::ar}, {AppLanguage::hi, texts::hi},
    {AppLanguage::tr, texts::tr}, {AppLanguage::pl, texts::pl}, {AppLanguage::nl, texts::nl},
    {AppLanguage::uk, texts::uk}, {AppLanguage::vi, texts::vi}, {AppLanguage::th, texts::th},
    {AppLanguage::id, texts::id}, {AppLanguage::el, texts::el},
});

constexpr std::string_view keyAt(std::uint8_t place) {
    return keys[place];
}

// Places in `keys`, in the alphabetical order of the keys.
constexpr auto alphabetical = [] {
    std::array<std::uint8_t, keys.size()> places{};
    std::iota(places.begin(), places.end(), std::uint8_t{0});
    std::ranges::sort(places, {}, keyAt);
    return places;
}();
static_assert(std::ranges::adjacent_find(alphabetical, {}, keyAt) == alphabetical.end(),
              "a key is listed twice in Keys.h");

// Place of the key in `keys`; none for an unknown key.
std::optional<std::size_t> placeOf(std::string_view key) {
    const auto* const found = std::ranges::lower_bound(alphabetical, key, {}, keyAt);
    return found != alphabetical.end() && keyAt(*found) == key ? std::optional<std::size_t>(*found)
                                                               : std::nullopt;
}

constexpr std::string_view placeholder = "%@";

const Column& columnFor(AppLanguage language) {
    return table[static_cast<std::size_t>(language)];
}

} // namespace

constexpr Table table = tableOf(languages);

std::string_view t(std::string_view key, AppLanguage language) {
    const auto place = placeOf(key);
    if (!place) {
        return key;
    }
    for (const AppLanguage choice : {language, AppLanguage::en}) {
        if (const std::string_view text = columnFor(choice)[*place]; !text.empty()) {
            return text;
        }
    }
    return key;
}

std::string fill(std::string_view format, std::initializer_list<std::string_view> arguments) {
    std::string filled;
    for (const std::string_view argument : arguments) {
        const std::size_t place = format.find(placeholder);
        if (place == std::string_view::npos) {
            break;
        }
        filled += format.substr(0, place);
        filled += argument;
        format.remove_prefix(place + placeholder.size());
    }
    filled += format;
    return filled;
}

} // namespace vorbel::L10n
