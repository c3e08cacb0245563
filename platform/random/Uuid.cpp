#include "platform/random/Uuid.h"

#include <string_view>

namespace vorbel {

std::string randomUuid(RandomSource& random) {
    constexpr std::size_t uuidDigits = 32;
    constexpr std::string_view digits = "0123456789ABCDEF";
    constexpr std::size_t variants = 4; // the variant digit is one of 8, 9, A, B
    std::string uuid;
    for (std::size_t i = 0; i < uuidDigits; ++i) {
        if (i == 8 || i == 12 || i == 16 || i == 20) {
            uuid += '-';
        }
        const std::size_t digit = i == 12   ? 4
                                  : i == 16 ? 8 + random.index(variants)
                                            : random.index(digits.size());
        uuid += digits[digit];
    }
    return uuid;
}

} // namespace vorbel
