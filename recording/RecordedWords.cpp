#include "recording/RecordedWords.h"

#include <array>

namespace vorbel::recording {

namespace {

using Kind = MatchAction::Kind;

constexpr std::array kinds{Kind::press, Kind::takeBack, Kind::turn, Kind::raise,
                           Kind::power, Kind::pace,     Kind::step};

// "france" of "country.france".
std::string_view lastPart(TextKey key) {
    const std::string_view name = key.name();
    return name.substr(name.find('.') + 1);
}

template <typename Values>
auto valueFor(const Values& values, std::string_view word) -> std::optional<typename Values::value_type> {
    for (const auto value : values) {
        if (wordFor(value) == word) {
            return value;
        }
    }
    return std::nullopt;
}

} // namespace

std::string_view wordFor(AIDifficulty level) {
    return lastPart(key(level));
}

std::string_view wordFor(Country country) {
    return lastPart(key(country));
}

std::string_view wordFor(Kind kind) {
    constexpr std::array<std::string_view, kinds.size()> words{"press", "takeBack", "turn", "raise",
                                                               "power", "pace",     "step"};
    return words[static_cast<std::size_t>(kind)];
}

std::string_view wordForSide(bool isAI) {
    return isAI ? "computer" : "player";
}

std::optional<bool> isAIFor(std::string_view word) {
    return word == wordForSide(true)    ? std::optional(true)
           : word == wordForSide(false) ? std::optional(false)
                                        : std::nullopt;
}

std::optional<AIDifficulty> levelFor(std::string_view word) {
    return valueFor(allDifficulties, word);
}

std::optional<Country> countryFor(std::string_view word) {
    return valueFor(allCountries, word);
}

std::optional<Kind> actionFor(std::string_view word) {
    return valueFor(kinds, word);
}

} // namespace vorbel::recording
