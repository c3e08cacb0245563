// The nations that a side can play for.
#pragma once

#include "l10n/TextKey.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace vorbel {

// In the order of the country picker, of random draws and of the flag wall.
enum class Country : std::uint8_t {
    belgium,
    croatia,
    czechRepublic,
    france,
    germany,
    greatBritain,
    greece,
    hungary,
    netherlands,
    poland,
    portugal,
    slovakia,
    spain,
    ukraine,
    china,
    hongKong,
    indonesia,
    japan,
    southKorea,
    malaysia,
    singapore,
    thailand,
    israel,
    argentina,
    bermuda,
    brazil,
    canada,
    colombia,
    ecuador,
    elSalvador,
    mexico,
    peru,
    egypt,
    southAfrica,
    tunisia,
    australia,
    russia,
};

inline constexpr std::size_t countryCount = 37;

extern const std::array<Country, countryCount> allCountries;

// Identifier: the country's Russian name. Never shown; texts shown come from the string table.
[[nodiscard]] std::string_view rawValue(Country country);
[[nodiscard]] std::optional<Country> countryFromRawValue(std::string_view name);

// Key of the country's name in the string table: "country." and the case's name.
[[nodiscard]] TextKey key(Country country);

// The flag as two regional-indicator symbols, UTF-8.
[[nodiscard]] std::string_view flagEmoji(Country country);

} // namespace vorbel
