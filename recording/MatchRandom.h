// The random numbers of a match that can be played again.
#pragma once

#include "platform/random/RandomSource.h"

namespace vorbel::recording {

// Repeats exactly from the same seed and place, on every machine.
class MatchRandom final : public RandomSource {
public:
    // A seed and how many 64-bit numbers have been drawn from it.
    struct Place {
        std::uint64_t seed = 0;
        std::uint64_t drawn = 0;
        bool operator==(const Place&) const = default;
    };

    explicit MatchRandom(Place place) { moveTo(place); }

    [[nodiscard]] Place place() const { return place_; }
    void moveTo(Place place); // takes a moment for each thousand million drawn

    [[nodiscard]] static std::uint64_t seedFrom(RandomSource& source);

private:
    std::uint64_t next() override;

    Place place_;
    std::mt19937_64 engine_;
};

} // namespace vorbel::recording
