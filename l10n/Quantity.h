// Numbers as a person would say them, alone and with their unit.
#pragma once

#include "l10n/AppLanguage.h"
#include "l10n/TextKey.h"

#include <string>

namespace vorbel::L10n {

// The number, which is not below zero, with the language's decimal sign. It is rounded to at most that many
// decimals; zeros at their end are not said.
[[nodiscard]] std::string number(double value, int decimals, AppLanguage language);

// The same with its unit, in the plural form that goes with it. The unit's text holds one form for each kind
// of number that the language tells apart, with "|" between them.
[[nodiscard]] std::string quantity(TextKey unit, double value, int decimals, AppLanguage language);

} // namespace vorbel::L10n
