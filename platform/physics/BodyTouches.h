// Which bodies touch each other.
#pragma once

#include <cstddef>
#include <vector>

namespace vorbel {

// A touch begins when two bodies meet, and lasts until they are clearly apart,
// so that balls resting against each other do not begin to touch again and
// again. Bodies are known by their index; the order of a pair is of no concern.
class BodyTouches {
public:
    explicit BodyTouches(std::size_t bodyCount = 0)
        : count_(bodyCount), touching_(bodyCount * bodyCount, 0) {}

    [[nodiscard]] bool isTouching(std::size_t a, std::size_t b) const { return touching_[cell(a, b)] != 0; }
    void set(std::size_t a, std::size_t b, bool isTouching) { touching_[cell(a, b)] = isTouching ? 1 : 0; }

    // Takes over the distance of two bodies' surfaces, in metres, and how much of it they will cover within
    // the coming sub-step. True when with that they begin to touch.
    bool begins(std::size_t a, std::size_t b, double gap, double approach);

private:
    [[nodiscard]] std::size_t cell(std::size_t a, std::size_t b) const {
        return a < b ? a * count_ + b : b * count_ + a;
    }

    std::size_t count_;
    std::vector<char> touching_;
};

} // namespace vorbel
