#include "l10n/L10n.h"

#include "l10n/Table.h"

namespace vorbel::L10n {

namespace {

constexpr std::string_view placeholder = "%@";

std::string_view textOf(TextKey key, AppLanguage language) {
    const auto row = static_cast<std::size_t>(language);
    return key.isExtra() ? extraTable[row][key.index()] : table[row][key.index()];
}

} // namespace

std::string_view t(TextKey key, AppLanguage language) {
    const std::string_view text = textOf(key, language);
    return text.empty() ? textOf(key, AppLanguage::en) : text;
}

std::string_view tNamed(std::string_view name, AppLanguage language) {
    const auto key = TextKey::named(name);
    return key ? t(*key, language) : name;
}

std::string fill(std::string_view format, std::initializer_list<std::string_view> arguments) {
    std::string filled;
    for (const std::string_view argument : arguments) {
        const std::size_t place = format.find(placeholder);
        if (place == std::string_view::npos) {
            break;
        }
        filled += format.substr(0, place);
        filled += argument;
        format.remove_prefix(place + placeholder.size());
    }
    filled += format;
    return filled;
}

} // namespace vorbel::L10n
