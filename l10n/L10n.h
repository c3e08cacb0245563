// Every text that the program shows, looked up at display time.
#pragma once

#include "l10n/AppLanguage.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace vorbel::L10n {

// The text of the key in the language; where that language has none, the English one; for an unknown key the
// key itself. The result lives as long as the program, or as long as `key` when that is returned.
[[nodiscard]] std::string_view t(std::string_view key, AppLanguage language);

// Puts the arguments in place of the placeholders "%@", left to right. Arguments left over are ignored,
// placeholders left over stay as they are.
[[nodiscard]] std::string fill(std::string_view format, std::initializer_list<std::string_view> arguments);

} // namespace vorbel::L10n
