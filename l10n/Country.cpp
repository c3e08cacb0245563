#include "l10n/Country.h"

#include <algorithm>

namespace vorbel {

namespace {

struct Row {
    std::string_view rawValue;
    TextKey key;
    std::string_view flagEmoji;
};

// In the order of Country.
constexpr std::array<Row, countryCount> rows{{
    {"Бельгия", "country.belgium", "🇧🇪"},
    {"Хорватия", "country.croatia", "🇭🇷"},
    {"Чехия", "country.czechRepublic", "🇨🇿"},
    {"Франция", "country.france", "🇫🇷"},
    {"Германия", "country.germany", "🇩🇪"},
    {"Великобритания", "country.greatBritain", "🇬🇧"},
    {"Греция", "country.greece", "🇬🇷"},
    {"Венгрия", "country.hungary", "🇭🇺"},
    {"Нидерланды", "country.netherlands", "🇳🇱"},
    {"Польша", "country.poland", "🇵🇱"},
    {"Португалия", "country.portugal", "🇵🇹"},
    {"Словакия", "country.slovakia", "🇸🇰"},
    {"Испания", "country.spain", "🇪🇸"},
    {"Украина", "country.ukraine", "🇺🇦"},
    {"Китай", "country.china", "🇨🇳"},
    {"Гонконг", "country.hongKong", "🇭🇰"},
    {"Индонезия", "country.indonesia", "🇮🇩"},
    {"Япония", "country.japan", "🇯🇵"},
    {"Южная Корея", "country.southKorea", "🇰🇷"},
    {"Малайзия", "country.malaysia", "🇲🇾"},
    {"Сингапур", "country.singapore", "🇸🇬"},
    {"Таиланд", "country.thailand", "🇹🇭"},
    {"Израиль", "country.israel", "🇮🇱"},
    {"Аргентина", "country.argentina", "🇦🇷"},
    {"Бермуды", "country.bermuda", "🇧🇲"},
    {"Бразилия", "country.brazil", "🇧🇷"},
    {"Канада", "country.canada", "🇨🇦"},
    {"Колумбия", "country.colombia", "🇨🇴"},
    {"Эквадор", "country.ecuador", "🇪🇨"},
    {"Сальвадор", "country.elSalvador", "🇸🇻"},
    {"Мексика", "country.mexico", "🇲🇽"},
    {"Перу", "country.peru", "🇵🇪"},
    {"Египет", "country.egypt", "🇪🇬"},
    {"ЮАР", "country.southAfrica", "🇿🇦"},
    {"Тунис", "country.tunisia", "🇹🇳"},
    {"Австралия", "country.australia", "🇦🇺"},
    {"Россия", "country.russia", "🇷🇺"},
}};

const Row& rowOf(Country country) {
    return rows[static_cast<std::size_t>(country)];
}

} // namespace

constexpr std::array<Country, countryCount> allCountries = [] {
    std::array<Country, countryCount> all{};
    for (std::size_t i = 0; i < all.size(); ++i) {
        all[i] = static_cast<Country>(i);
    }
    return all;
}();

std::string_view rawValue(Country country) {
    return rowOf(country).rawValue;
}

TextKey key(Country country) {
    return rowOf(country).key;
}

std::string_view flagEmoji(Country country) {
    return rowOf(country).flagEmoji;
}

std::optional<Country> countryFromRawValue(std::string_view name) {
    const auto* const found =
        std::ranges::find_if(allCountries, [&](Country c) { return rawValue(c) == name; });
    return found == allCountries.end() ? std::nullopt : std::optional(*found);
}

} // namespace vorbel
