// Every text that the program shows, looked up at display time.
#pragma once

#include "l10n/AppLanguage.h"
#include "l10n/TextKey.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace vorbel::L10n {

// The text of the key in the language, or in English where that language has none; it lives as long as the
// program does.
[[nodiscard]] std::string_view t(TextKey key, AppLanguage language);

// The same for a key from stored data. An unknown one shows itself: the result is then `name`, and lives as
// long as that.
[[nodiscard]] std::string_view tNamed(std::string_view name, AppLanguage language);

// Puts the arguments in place of the placeholders "%@", left to right. Arguments left over are ignored,
// placeholders left over stay as they are.
[[nodiscard]] std::string fill(std::string_view format, std::initializer_list<std::string_view> arguments);

} // namespace vorbel::L10n
