// The computer's levels as the simulator's user writes and reads them.
#pragma once

#include "rules/MatchTypes.h"

#include <string_view>

namespace vorbel::sim {

[[nodiscard]] std::string_view levelName(AIDifficulty level);

} // namespace vorbel::sim
