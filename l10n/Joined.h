// Lists of texts, one after the other.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace vorbel::L10n {

template <std::size_t... sizes>
[[nodiscard]] consteval auto joined(const std::array<std::string_view, sizes>&... lists) {
    std::array<std::string_view, (sizes + ...)> all{};
    auto* end = all.begin();
    ((end = std::ranges::copy(lists, end).out), ...);
    return all;
}

} // namespace vorbel::L10n
