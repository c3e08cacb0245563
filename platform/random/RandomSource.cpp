#include "platform/random/RandomSource.h"

namespace vorbel {

double RandomSource::uniform(double low, double high) {
    constexpr std::uint64_t steps = std::uint64_t{1} << 53U;
    const auto k = below(steps + 1);
    return low + (high - low) * (static_cast<double>(k) / static_cast<double>(steps));
}

std::size_t RandomSource::index(std::size_t count) {
    return below(count);
}

std::uint64_t RandomSource::below(std::uint64_t bound) {
    // Numbers past the largest multiple of the bound are drawn again, or small results would be favoured.
    const std::uint64_t excess = (UINT64_MAX % bound + 1) % bound;
    std::uint64_t drawn = next();
    while (drawn > UINT64_MAX - excess) {
        drawn = next();
    }
    return drawn % bound;
}

std::uint64_t SystemRandom::next() {
    constexpr unsigned halfWidth = 32;
    return (static_cast<std::uint64_t>(device_()) << halfWidth) | device_();
}

} // namespace vorbel
