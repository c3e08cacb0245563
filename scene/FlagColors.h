// The colours of the flag wall.
#pragma once

#include "platform/scenegraph/Color.h"

namespace vorbel::flags {

inline constexpr Color red{0.80F, 0.05F, 0.10F};
inline constexpr Color deepRed{0.75F, 0.05F, 0.10F};
inline constexpr Color gold{0.95F, 0.75F, 0.15F};
inline constexpr Color blue{0.00F, 0.15F, 0.60F};
inline constexpr Color navy{0.00F, 0.10F, 0.40F};
inline constexpr Color green{0.00F, 0.45F, 0.15F};
inline constexpr Color darkGreen{0.00F, 0.40F, 0.20F};
inline constexpr Color crossRed{0.78F, 0.05F, 0.15F};
inline constexpr Color thaiRed{0.70F, 0.05F, 0.10F};
inline constexpr Color skyBlue{0.45F, 0.70F, 0.95F};
inline constexpr Color koreaBlue{0.00F, 0.15F, 0.55F};
inline constexpr Color starBlue{0.00F, 0.15F, 0.55F};
inline constexpr Color cantonNavy{0.00F, 0.12F, 0.35F};
inline constexpr Color white = colors::white;
inline constexpr Color black = colors::black;

} // namespace vorbel::flags
