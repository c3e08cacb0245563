#include "tools/sim/Levels.h"

#include <array>

namespace vorbel::sim {

std::string_view levelName(AIDifficulty level) {
    constexpr std::array<std::string_view, allDifficulties.size()> names{"easy", "medium", "hard", "ultra"};
    return names[static_cast<std::size_t>(level)];
}

} // namespace vorbel::sim
