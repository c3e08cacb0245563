#include "l10n/Quantity.h"

#include "l10n/L10n.h"

#include <cmath>
#include <cstdint>

namespace vorbel::L10n {

namespace {

struct Rounded {
    std::int64_t whole;
    std::string decimals; // the digits after the sign; without zeros at the end
};

Rounded rounded(double value, int decimals) {
    const auto parts = static_cast<std::int64_t>(std::pow(10, decimals));
    const std::int64_t all = std::llround(value * static_cast<double>(parts));
    std::string digits = std::to_string(parts + all % parts).substr(1); // behind the 1: zeros in front stay
    digits.erase(digits.find_last_not_of('0') + 1);
    return {all / parts, digits};
}

std::string written(const Rounded& number, AppLanguage language) {
    const std::string whole = std::to_string(number.whole);
    return number.decimals.empty()
               ? whole
               : whole + std::string(t("number.decimalPoint", language)) + number.decimals;
}

// Russian and Ukrainian: 1, 21, 31 …; 2–4, 22–24 …; all other whole numbers.
std::size_t eastSlavicForm(std::int64_t number) {
    const std::int64_t ones = number % 10;
    const bool isTeen = number / 10 % 10 == 1;
    if (isTeen || ones == 0 || ones > 4) {
        return 2;
    }
    return ones == 1 ? 0 : 1;
}

// Polish counts as they do, but its first form is that of 1 alone.
std::size_t polishForm(std::int64_t number) {
    if (number == 1) {
        return 0;
    }
    const std::size_t form = eastSlavicForm(number);
    return form == 0 ? 2 : form;
}

// Arabic: 1; 2; 3–10; 11–99; all others. From 3 on the last two digits decide.
std::size_t arabicForm(std::int64_t number) {
    if (number == 1 || number == 2) {
        return static_cast<std::size_t>(number - 1);
    }
    const std::int64_t lastTwo = number % 100;
    if (lastTwo < 3) {
        return 4;
    }
    return lastTwo <= 10 ? 2 : 3;
}

// The place of the form among those of the language, by the plural rules of the Unicode CLDR.
std::size_t formOf(const Rounded& number, AppLanguage language) {
    const bool isWhole = number.decimals.empty();
    switch (language) {
    case AppLanguage::zh:
    case AppLanguage::ja:
    case AppLanguage::ko:
    case AppLanguage::th:
    case AppLanguage::vi:
    case AppLanguage::id:
        return 0;
    case AppLanguage::fr:
    case AppLanguage::pt:
        return number.whole < 2 ? 0 : 1; // 1,9 is still one
    case AppLanguage::hi:
        return number.whole == 0 || (isWhole && number.whole == 1) ? 0 : 1;
    case AppLanguage::ru:
    case AppLanguage::uk:
        return isWhole ? eastSlavicForm(number.whole) : 3;
    case AppLanguage::pl:
        return isWhole ? polishForm(number.whole) : 3;
    case AppLanguage::ar:
        return isWhole ? arabicForm(number.whole) : 4;
    default:
        return isWhole && number.whole == 1 ? 0 : 1;
    }
}

std::string_view formAt(std::string_view forms, std::size_t place) {
    for (; place > 0; --place) {
        forms.remove_prefix(forms.find('|') + 1);
    }
    return forms.substr(0, forms.find('|'));
}

} // namespace

std::string number(double value, int decimals, AppLanguage language) {
    return written(rounded(value, decimals), language);
}

std::string quantity(TextKey unit, double value, int decimals, AppLanguage language) {
    const Rounded number = rounded(value, decimals);
    return fill(formAt(t(unit, language), formOf(number, language)), {written(number, language)});
}

} // namespace vorbel::L10n
