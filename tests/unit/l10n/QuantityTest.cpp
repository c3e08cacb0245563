// Numbers with their unit, in the plural forms of each language.
#include "l10n/Quantity.h"
#include "tests/unit/l10n/EachLanguage.h"
#include "tests/unit/l10n/Utf8.h"

#include <array>

namespace vorbel::L10n {
namespace {

struct Case {
    AppLanguage language;
    double value;
    int decimals;
    std::string_view spoken;
};

constexpr auto metres = std::to_array<Case>({
    {AppLanguage::en, 0, 1, "0 metres"},      {AppLanguage::en, 1, 1, "1 metre"},
    {AppLanguage::en, 1.04, 1, "1 metre"},    {AppLanguage::en, 1.05, 1, "1.1 metres"},
    {AppLanguage::en, 1.96, 1, "2 metres"},   {AppLanguage::en, 6.2, 1, "6.2 metres"},
    {AppLanguage::en, 10, 1, "10 metres"},    {AppLanguage::en, 2.05, 2, "2.05 metres"},
    {AppLanguage::en, 0.5, 0, "1 metre"},     {AppLanguage::de, 6.2, 1, "6,2 Meter"},
    {AppLanguage::nl, 1.5, 1, "1,5 meter"},   {AppLanguage::es, 1, 1, "1 metro"},
    {AppLanguage::es, 1.5, 1, "1,5 metros"},  {AppLanguage::it, 2, 1, "2 metri"},
    {AppLanguage::el, 1, 1, "1 μέτρο"},       {AppLanguage::el, 0, 1, "0 μέτρα"},
    {AppLanguage::tr, 3, 1, "3 metre"},       {AppLanguage::fr, 0, 1, "0 mètre"},
    {AppLanguage::fr, 1.9, 1, "1,9 mètre"},   {AppLanguage::fr, 2, 1, "2 mètres"},
    {AppLanguage::pt, 0.4, 1, "0,4 metro"},   {AppLanguage::pt, 2.5, 1, "2,5 metros"},
    {AppLanguage::hi, 1.5, 1, "1.5 मीटर"},    {AppLanguage::zh, 1, 1, "1米"},
    {AppLanguage::ja, 6.2, 1, "6.2メートル"}, {AppLanguage::ko, 2, 1, "2미터"},
    {AppLanguage::th, 2, 1, "2 เมตร"},        {AppLanguage::vi, 0.4, 1, "0,4 mét"},
    {AppLanguage::id, 1, 1, "1 meter"},       {AppLanguage::ru, 6.2, 1, "6,2 метра"},
    {AppLanguage::ru, 1, 1, "1 метр"},        {AppLanguage::ru, 5, 1, "5 метров"},
    {AppLanguage::uk, 2, 1, "2 метри"},       {AppLanguage::uk, 2.1, 1, "2,1 метра"},
    {AppLanguage::pl, 1, 1, "1 metr"},        {AppLanguage::pl, 1.5, 1, "1,5 metra"},
    {AppLanguage::ar, 1, 1, "متر واحد"},      {AppLanguage::ar, 2, 1, "متران"},
    {AppLanguage::ar, 2.5, 1, "2.5 متر"},
});

constexpr auto centimetres = std::to_array<Case>({
    {AppLanguage::en, 1, 0, "1 centimetre"},      {AppLanguage::en, 21, 0, "21 centimetres"},
    {AppLanguage::ru, 0, 0, "0 сантиметров"},     {AppLanguage::ru, 1, 0, "1 сантиметр"},
    {AppLanguage::ru, 2, 0, "2 сантиметра"},      {AppLanguage::ru, 4, 0, "4 сантиметра"},
    {AppLanguage::ru, 5, 0, "5 сантиметров"},     {AppLanguage::ru, 11, 0, "11 сантиметров"},
    {AppLanguage::ru, 12, 0, "12 сантиметров"},   {AppLanguage::ru, 14, 0, "14 сантиметров"},
    {AppLanguage::ru, 20, 0, "20 сантиметров"},   {AppLanguage::ru, 21, 0, "21 сантиметр"},
    {AppLanguage::ru, 24, 0, "24 сантиметра"},    {AppLanguage::ru, 111, 0, "111 сантиметров"},
    {AppLanguage::ru, 121, 0, "121 сантиметр"},   {AppLanguage::uk, 21, 0, "21 сантиметр"},
    {AppLanguage::uk, 22, 0, "22 сантиметри"},    {AppLanguage::uk, 13, 0, "13 сантиметрів"},
    {AppLanguage::pl, 1, 0, "1 centymetr"},       {AppLanguage::pl, 3, 0, "3 centymetry"},
    {AppLanguage::pl, 5, 0, "5 centymetrów"},     {AppLanguage::pl, 12, 0, "12 centymetrów"},
    {AppLanguage::pl, 21, 0, "21 centymetrów"},   {AppLanguage::pl, 22, 0, "22 centymetry"},
    {AppLanguage::pl, 112, 0, "112 centymetrów"}, {AppLanguage::ar, 0, 0, "0 سنتيمتر"},
    {AppLanguage::ar, 3, 0, "3 سنتيمترات"},       {AppLanguage::ar, 10, 0, "10 سنتيمترات"},
    {AppLanguage::ar, 11, 0, "11 سنتيمترًا"},      {AppLanguage::ar, 99, 0, "99 سنتيمترًا"},
    {AppLanguage::ar, 100, 0, "100 سنتيمتر"},     {AppLanguage::ar, 101, 0, "101 سنتيمتر"},
    {AppLanguage::ar, 102, 0, "102 سنتيمتر"},     {AppLanguage::ar, 103, 0, "103 سنتيمترات"},
    {AppLanguage::ar, 111, 0, "111 سنتيمترًا"},
});

TEST(QuantityTest, HasThePluralFormOfItsNumber) {
    for (const auto& [language, value, decimals, spoken] : metres) {
        EXPECT_EQ(quantity("unit.metres.format", value, decimals, language), spoken);
    }
    for (const auto& [language, value, decimals, spoken] : centimetres) {
        EXPECT_EQ(quantity("unit.centimetres.format", value, decimals, language), spoken);
    }
}

TEST(QuantityTest, ANumberAloneIsRoundedAndHasTheDecimalSignOfTheLanguage) {
    EXPECT_EQ(number(62.4, 0, AppLanguage::en), "62");
    EXPECT_EQ(number(62.5, 0, AppLanguage::en), "63");
    EXPECT_EQ(number(0.05, 1, AppLanguage::en), "0.1");
    EXPECT_EQ(number(2.86, 1, AppLanguage::fr), "2,9");
    EXPECT_EQ(number(2.99, 1, AppLanguage::fr), "3");
}

class UnitFormsTest : public vorbel::test::EachLanguage {};

std::size_t formsOf(AppLanguage language) {
    switch (language) {
    case AppLanguage::zh:
    case AppLanguage::ja:
    case AppLanguage::ko:
    case AppLanguage::th:
    case AppLanguage::vi:
    case AppLanguage::id:
        return 1;
    case AppLanguage::ru:
    case AppLanguage::uk:
    case AppLanguage::pl:
        return 4;
    case AppLanguage::ar:
        return 5;
    default:
        return 2;
    }
}

TEST_P(UnitFormsTest, AreAsManyAsTheLanguageHasAndEachHoldsItsNumberOnce) {
    for (const char* key : {"unit.degrees.format", "unit.centimetres.format", "unit.metres.format"}) {
        const auto forms = vorbel::test::split(texts.at(key), '|');
        ASSERT_EQ(forms.size(), formsOf(GetParam())) << key;
        for (std::size_t i = 0; i < forms.size(); ++i) {
            const bool saysItInTheWord = GetParam() == AppLanguage::ar && i < 2; // one, two
            EXPECT_EQ(vorbel::test::count(forms[i], "%@"), saysItInTheWord ? 0u : 1u) << forms[i];
            EXPECT_FALSE(forms[i].empty()) << key;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(L10n, UnitFormsTest, testing::ValuesIn(allLanguages), vorbel::test::nameOf);

} // namespace
} // namespace vorbel::L10n
