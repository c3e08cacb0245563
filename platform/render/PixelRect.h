// Rectangles of pixels.
#pragma once

#include <algorithm>

namespace vorbel {

// From the lower left corner on; the right and the upper edge do not belong to it. Empty when an edge has no
// length; all empty ones are equal for the operations below.
struct PixelRect {
    int left = 0;
    int bottom = 0;
    int right = 0;
    int top = 0;

    [[nodiscard]] constexpr int width() const { return std::max(right - left, 0); }
    [[nodiscard]] constexpr int height() const { return std::max(top - bottom, 0); }
    [[nodiscard]] constexpr bool empty() const { return right <= left || top <= bottom; }
    [[nodiscard]] constexpr long area() const { return static_cast<long>(width()) * height(); }

    [[nodiscard]] constexpr bool overlaps(const PixelRect& other) const {
        return left < other.right && other.left < right && bottom < other.top && other.bottom < top;
    }
    [[nodiscard]] constexpr bool contains(const PixelRect& other) const {
        return left <= other.left && other.right <= right && bottom <= other.bottom && other.top <= top;
    }
    bool operator==(const PixelRect&) const = default;
};

[[nodiscard]] constexpr PixelRect united(const PixelRect& a, const PixelRect& b) {
    if (a.empty() || b.empty()) {
        return a.empty() ? b : a;
    }
    return {std::min(a.left, b.left), std::min(a.bottom, b.bottom), std::max(a.right, b.right),
            std::max(a.top, b.top)};
}

[[nodiscard]] constexpr PixelRect common(const PixelRect& a, const PixelRect& b) {
    return {std::max(a.left, b.left), std::max(a.bottom, b.bottom), std::min(a.right, b.right),
            std::min(a.top, b.top)};
}

} // namespace vorbel
