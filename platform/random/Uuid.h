// Names that nobody else gives.
#pragma once

#include "platform/random/RandomSource.h"

#include <string>

namespace vorbel {

// A fresh random UUID (version 4) as 8-4-4-4-12 upper-case hexadecimal digits.
[[nodiscard]] std::string randomUuid(RandomSource& random);

} // namespace vorbel
