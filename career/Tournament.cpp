#include "career/Tournament.h"

namespace vorbel {

Country opponentAt(std::size_t place, Country player) {
    // Those behind the player's country move up by one place.
    return allCountries[place < static_cast<std::size_t>(player) ? place : place + 1];
}

} // namespace vorbel
