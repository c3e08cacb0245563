// A key that is known to be in Keys.h.
#pragma once

#include "l10n/Keys.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>

namespace vorbel {

class TextKey {
public:
    // Written out in the code: a name that is not in Keys.h stops the compiler, which shows the text thrown.
    // Implicit, so that a call reads as t("menu.play", language).
    consteval TextKey(const char* name) : place_(placeOf(name)) { // NOLINT(google-explicit-constructor)
        if (place_ == count) {
            throw "the text key is not in Keys.h";
        }
    }

    // For a name that only the running program knows, from stored data; none for one that is not in Keys.h.
    [[nodiscard]] static constexpr std::optional<TextKey> named(std::string_view name) {
        const std::size_t place = placeOf(name);
        return place == count ? std::nullopt : std::optional(TextKey(place));
    }

    [[nodiscard]] constexpr std::string_view name() const {
        return isExtra() ? L10n::extraKeys[index()] : L10n::keys[index()];
    }
    [[nodiscard]] constexpr bool isExtra() const { return place_ >= L10n::keys.size(); }
    [[nodiscard]] constexpr std::size_t index() const { // in `extraKeys` or in `keys`
        return isExtra() ? place_ - L10n::keys.size() : place_;
    }

    constexpr bool operator==(const TextKey&) const = default;

private:
    constexpr explicit TextKey(std::size_t place) : place_(place) {}

    static constexpr std::size_t count = L10n::keys.size() + L10n::extraKeys.size();

    // `count` for an unknown name.
    static constexpr std::size_t placeOf(std::string_view name) {
        const auto* const found = std::ranges::find(L10n::keys, name);
        const auto* const extra = std::ranges::find(L10n::extraKeys, name);
        return static_cast<std::size_t>(found - L10n::keys.begin()) +
               (found == L10n::keys.end() ? static_cast<std::size_t>(extra - L10n::extraKeys.begin()) : 0);
    }

    std::size_t place_; // counted through `keys` and then `extraKeys`
};

} // namespace vorbel
