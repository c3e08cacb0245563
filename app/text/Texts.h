// Texts of the string table as Qt wants them.
#pragma once

#include "l10n/L10n.h"

#include <QString>

namespace vorbel {

[[nodiscard]] inline QString text(TextKey key, AppLanguage language) {
    return QString::fromUtf8(L10n::t(key, language));
}

// The same for a key whose text holds placeholders.
[[nodiscard]] inline QString text(TextKey key, AppLanguage language,
                                  std::initializer_list<std::string_view> arguments) {
    return QString::fromStdString(L10n::fill(L10n::t(key, language), arguments));
}

} // namespace vorbel
