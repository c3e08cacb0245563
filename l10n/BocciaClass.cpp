#include "l10n/BocciaClass.h"

#include <algorithm>

namespace vorbel {

namespace {

struct Row {
    std::string_view rawValue;
    TextKey descriptionKey;
};

// In the order of BocciaClass.
constexpr std::array<Row, bocciaClassCount> rows{{
    {"BC1", "bc.desc.bc1"},
    {"BC2", "bc.desc.bc2"},
    {"BC3", "bc.desc.bc3"},
    {"BC4", "bc.desc.bc4"},
}};

const Row& rowOf(BocciaClass sportClass) {
    return rows[static_cast<std::size_t>(sportClass)];
}

} // namespace

constexpr std::array<BocciaClass, bocciaClassCount> allBocciaClasses{BocciaClass::bc1, BocciaClass::bc2,
                                                                     BocciaClass::bc3, BocciaClass::bc4};

std::string_view rawValue(BocciaClass sportClass) {
    return rowOf(sportClass).rawValue;
}

TextKey descriptionKey(BocciaClass sportClass) {
    return rowOf(sportClass).descriptionKey;
}

std::optional<BocciaClass> bocciaClassFromRawValue(std::string_view name) {
    const auto* const found =
        std::ranges::find_if(allBocciaClasses, [&](BocciaClass c) { return rawValue(c) == name; });
    return found == allBocciaClasses.end() ? std::nullopt : std::optional(*found);
}

} // namespace vorbel
