// How large a ladder is played.
#pragma once

#include <cstdint>

namespace vorbel::sim {

struct LadderSettings {
    // At most 2³⁰. Either level of a pair plays red once, so a pair plays twice as many.
    int matchesPerCell = 100;
    std::uint64_t firstSeed = 1;
    unsigned jobs = 1; // threads; more than 256, or than the system gives, are as many as there are
};

} // namespace vorbel::sim
