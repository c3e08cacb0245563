// What is left of a picture for eyes that lack one kind of cone.
#pragma once

#include <QColor>
#include <QImage>

#include <array>
#include <cstdint>

namespace vorbel {

enum class Sight : std::uint8_t { normal, protan, deutan, tritan };
inline constexpr std::array allSights{Sight::normal, Sight::protan, Sight::deutan, Sight::tritan};
[[nodiscard]] const char* nameOf(Sight sight);

// Simulated by the model of Machado, Oliveira and Fernandes (2009), at full severity.
[[nodiscard]] QColor seenBy(Sight sight, const QColor& color);
[[nodiscard]] QImage seenBy(Sight sight, const QImage& picture);

// A picture that is half as wide again as it is high as each of them sees it: two above two, 600 pixels wide.
[[nodiscard]] QImage sheetOf(const QImage& picture);

} // namespace vorbel
