// The message line as it is spoken.
#pragma once

#include "l10n/AppLanguage.h"

#include <string>
#include <string_view>

namespace vorbel {

// The names of keys without the brackets around them, and arrows in words.
[[nodiscard]] std::string spokenMessage(std::string_view message, AppLanguage language);

} // namespace vorbel
