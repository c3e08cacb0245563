// The sport ranks that a player earns with matches.
#pragma once

#include "l10n/TextKey.h"

#include <optional>

namespace vorbel {

// Key of the rank's title in the string table after that many matches. Below 0 it is the lowest rank.
[[nodiscard]] TextKey rankKey(int gamesPlayed);

// How many more matches the next rank takes, at least 1; none at the top rank.
[[nodiscard]] std::optional<int> gamesToNextRank(int gamesPlayed);

} // namespace vorbel
