#include "l10n/Country.h"

#include "l10n/L10n.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace vorbel {
namespace {

// The ISO 3166-1 alpha-2 code that a flag's two regional indicators (U+1F1E6 … U+1F1FF) spell.
std::string isoCodeOf(std::string_view flag) {
    if (flag.size() != 8) {
        return "not two regional indicators";
    }
    std::string code;
    for (const std::size_t start : {0u, 4u}) {
        if (flag.substr(start, 3) != "\xF0\x9F\x87") {
            return "not a regional indicator";
        }
        code += static_cast<char>('A' + static_cast<unsigned char>(flag[start + 3]) - 0xA6);
    }
    return code;
}

TEST(CountryTest, ThereAre37FromBelgiumToRussia) {
    EXPECT_EQ(allCountries.size(), 37u);
    EXPECT_EQ(allCountries.front(), Country::belgium);
    EXPECT_EQ(allCountries.back(), Country::russia);
}

TEST(CountryTest, IsConstructedFromItsRussianNameOnly) {
    EXPECT_EQ(countryFromRawValue("Россия"), Country::russia);
    for (const char* name : {"Russia", "russia", "", "россия", "Россия ", "country.russia"}) {
        EXPECT_FALSE(countryFromRawValue(name)) << name;
    }
    for (const Country country : allCountries) {
        EXPECT_EQ(countryFromRawValue(rawValue(country)), country);
    }
}

TEST(CountryTest, ElSalvadorIsTwoWordsInEnglishAndOneInRussian) {
    EXPECT_EQ(key(Country::elSalvador).name(), "country.elSalvador");
    EXPECT_EQ(L10n::t(key(Country::elSalvador), AppLanguage::en), "El Salvador");
    EXPECT_EQ(rawValue(Country::elSalvador), "Сальвадор");
}

TEST(CountryTest, FlagsAreThoseOfTheIsoCodesInTheOrderOfThePicker) {
    std::string codes;
    for (const Country country : allCountries) {
        codes += isoCodeOf(flagEmoji(country)) + " ";
    }
    EXPECT_EQ(codes,
              "BE HR CZ FR DE GB GR HU NL PL PT SK ES UA CN HK ID JP KR MY SG TH IL AR BM BR CA CO EC SV "
              "MX PE EG ZA TN AU RU ");
}

TEST(CountryTest, EachHasANameOfItsOwn) {
    std::set<std::string_view> names;
    for (const Country country : allCountries) {
        const std::string_view name = L10n::t(key(country), AppLanguage::en);
        EXPECT_EQ(key(country).name().find("country."), 0u);
        names.insert(name);
    }
    EXPECT_EQ(names.size(), countryCount);
}

TEST(CountryTest, RawValueIsTheNameThatRussianShows) {
    for (const Country country : allCountries) {
        EXPECT_EQ(L10n::t(key(country), AppLanguage::ru), rawValue(country));
    }
}

} // namespace
} // namespace vorbel
