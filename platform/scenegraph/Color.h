// Colours as the screen shows them.
#pragma once

namespace vorbel {

// sRGB-encoded components and straight (not premultiplied) alpha, each in 0…1.
struct Color {
    float red = 1;
    float green = 1;
    float blue = 1;
    float alpha = 1;

    [[nodiscard]] constexpr Color withAlpha(float newAlpha) const { return {red, green, blue, newAlpha}; }
    bool operator==(const Color&) const = default;
};

namespace colors {
inline constexpr Color white{1, 1, 1, 1};
inline constexpr Color black{0, 0, 0, 1};
inline constexpr Color lightGray{2.0F / 3, 2.0F / 3, 2.0F / 3, 1};
// The red and blue of the two sides: saturated, and far enough apart in lightness to be told apart by players
// with a colour vision deficiency.
inline constexpr Color systemRed{1.0F, 0.231F, 0.188F, 1};
inline constexpr Color systemBlue{0.0F, 0.478F, 1.0F, 1};
} // namespace colors

} // namespace vorbel
