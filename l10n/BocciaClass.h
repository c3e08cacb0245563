// The sport classes of boccia: who throws by hand or foot, with an assistant, or from a ramp.
#pragma once

#include "l10n/TextKey.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace vorbel {

enum class BocciaClass : std::uint8_t { bc1, bc2, bc3, bc4 };

inline constexpr std::size_t bocciaClassCount = 4;

extern const std::array<BocciaClass, bocciaClassCount> allBocciaClasses;

// "BC1" … "BC4": the identifier, and the name shown in every language.
[[nodiscard]] std::string_view rawValue(BocciaClass sportClass);
[[nodiscard]] std::optional<BocciaClass> bocciaClassFromRawValue(std::string_view name);

// Key of the class's description in the string table.
[[nodiscard]] TextKey descriptionKey(BocciaClass sportClass);

} // namespace vorbel
