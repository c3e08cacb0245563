#include "recording/MatchRandom.h"

#include <limits>

namespace vorbel::recording {

void MatchRandom::moveTo(Place place) {
    place_ = place;
    engine_.seed(place.seed);
    engine_.discard(place.drawn);
}

std::uint64_t MatchRandom::seedFrom(RandomSource& source) {
    return source.index(std::numeric_limits<std::size_t>::max());
}

std::uint64_t MatchRandom::next() {
    ++place_.drawn;
    return engine_();
}

} // namespace vorbel::recording
