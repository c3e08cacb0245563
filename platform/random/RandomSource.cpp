#include "platform/random/RandomSource.h"

#include <cerrno>
#include <system_error>

#include <unistd.h>

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

// Not std::random_device: that asks the processor for each number, which takes tens of microseconds on a
// virtual machine, and a thousand are needed to fill the stands.
std::uint64_t SystemRandom::next() {
    if (used_ == drawn_.size()) {
        if (::getentropy(drawn_.data(), sizeof drawn_) != 0) {
            throw std::system_error(errno, std::generic_category(), "no random numbers");
        }
        used_ = 0;
    }
    return drawn_[used_++];
}

} // namespace vorbel
