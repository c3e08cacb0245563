// Distances as they are said.
#pragma once

#include "l10n/AppLanguage.h"

#include <string>

namespace vorbel::narration {

// Of a ball from the jack: whole centimetres below a metre, from there on metres with one decimal.
[[nodiscard]] std::string fromJack(double metres, AppLanguage language);

// From the thrower: metres with one decimal.
[[nodiscard]] std::string fromThrower(double metres, AppLanguage language);

// Whether nothing is left of it once it is rounded like that.
[[nodiscard]] bool isNothingFromJack(double metres);
[[nodiscard]] bool isNothingFromThrower(double metres);

} // namespace vorbel::narration
