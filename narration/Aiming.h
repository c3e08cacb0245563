// An aim in words.
#pragma once

#include "l10n/AppLanguage.h"

#include <string>

namespace vorbel::narration {

// Both in radians, as rules/Aim.h has them; said in degrees with at most that many decimals.
[[nodiscard]] std::string angle(double angle, int decimals, AppLanguage language);
[[nodiscard]] std::string elevation(double pitch, int decimals, AppLanguage language);

[[nodiscard]] std::string power(double percent, AppLanguage language); // in whole percent

} // namespace vorbel::narration
