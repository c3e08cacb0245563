// Uniform random numbers.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <random>

namespace vorbel {

class RandomSource {
public:
    virtual ~RandomSource() = default;

    // Uniform in [low, high], both bounds included, with 53
    // bits of resolution. Needs low ≤ high, both finite.
    [[nodiscard]] double uniform(double low, double high);

    // Uniform in 0 … count − 1. Needs count > 0.
    [[nodiscard]] std::size_t index(std::size_t count);

private:
    virtual std::uint64_t next() = 0; // 64 uniform bits

    std::uint64_t below(std::uint64_t bound); // uniform in 0 … bound − 1
};

// The operating system's generator: every run differs. Throws std::system_error where there is none.
class SystemRandom final : public RandomSource {
    std::uint64_t next() override;
    std::array<std::uint64_t, 32> drawn_{}; // as much as the system gives at a time, 256 bytes
    std::size_t used_ = drawn_.size();
};

// Repeats exactly for the same seed, on every machine.
class SeededRandom final : public RandomSource {
public:
    explicit SeededRandom(std::uint64_t seed) : engine_(seed) {}

private:
    std::uint64_t next() override { return engine_(); }
    std::mt19937_64 engine_;
};

} // namespace vorbel
