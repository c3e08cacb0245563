// The words of a recording's file for what has a name in the game.
#pragma once

#include "engine/MatchAction.h"
#include "l10n/BocciaClass.h"
#include "l10n/Country.h"
#include "rules/MatchTypes.h"

#include <optional>
#include <string_view>

namespace vorbel::recording {

[[nodiscard]] std::string_view wordFor(AIDifficulty level); // "easy" … "ultra"
[[nodiscard]] std::string_view wordFor(Country country);    // "france"
[[nodiscard]] std::string_view wordFor(MatchAction::Kind kind);
[[nodiscard]] std::string_view wordForSide(bool isAI); // "player" or "computer"

[[nodiscard]] std::optional<AIDifficulty> levelFor(std::string_view word);
[[nodiscard]] std::optional<Country> countryFor(std::string_view word);
[[nodiscard]] std::optional<MatchAction::Kind> actionFor(std::string_view word);
[[nodiscard]] std::optional<bool> isAIFor(std::string_view word);

} // namespace vorbel::recording
