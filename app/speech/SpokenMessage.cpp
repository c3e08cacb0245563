#include "app/speech/SpokenMessage.h"

#include "l10n/L10n.h"

#include <array>

namespace vorbel {

namespace {

struct Replacement {
    std::string_view sign;
    TextKey word;
};

constexpr std::array arrows{Replacement{"←", "aim.left"}, Replacement{"→", "aim.right"},
                            Replacement{"↑", "aim.up"}, Replacement{"↓", "aim.down"}};

void replaceAll(std::string& text, std::string_view part, std::string_view with) {
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + with.size())) {
        text.replace(at, part.size(), with);
    }
}

} // namespace

std::string spokenMessage(std::string_view message, AppLanguage language) {
    std::string text(message);
    replaceAll(text, "][", ", ");
    replaceAll(text, "[", "");
    replaceAll(text, "]", "");
    for (const auto& [sign, word] : arrows) {
        replaceAll(text, sign, L10n::t(word, language));
    }
    return text;
}

} // namespace vorbel
