#include "app/keys/ButtonName.h"

#include "app/text/Texts.h"

#include <array>
#include <optional>

namespace vorbel {

namespace {

// In the order of ControllerButton.
using Labels = std::array<std::string_view, placesOfButtons>;

constexpr Labels withLetters{"A",  "B",  "X",  "Y",  "Back",     "Guide", "Start", "LS",
                             "RS", "LB", "RB", "↑",  "↓",        "←",     "→",     "Misc",
                             "P1", "P2", "P3", "P4", "Touchpad", "LT",    "RT"};
constexpr Labels withShapes{"",  "",  "",  "",    "Select", "PS", "Start", "L3", "R3",       "L1", "R1", "↑",
                            "↓", "←", "→", "Mic", "P1",     "P2", "P3",    "P4", "Touchpad", "L2", "R2"};
constexpr Labels withSigns{"A", "B", "X", "Y",       "−",  "Home", "+",  "L3", "R3",       "L",  "R", "↑",
                           "↓", "←", "→", "Capture", "P1", "P2",   "P3", "P4", "Touchpad", "ZL", "ZR"};

const Labels& labelsOf(ControllerFamily family) {
    switch (family) {
    case ControllerFamily::shapes:
        return withShapes;
    case ControllerFamily::signs:
        return withSigns;
    case ControllerFamily::letters:
        break;
    }
    return withLetters;
}

std::optional<TextKey> shape(ControllerButton button) {
    switch (button) {
    case ControllerButton::south:
        return TextKey("button.cross");
    case ControllerButton::east:
        return TextKey("button.circle");
    case ControllerButton::west:
        return TextKey("button.square");
    case ControllerButton::north:
        return TextKey("button.triangle");
    default:
        return std::nullopt;
    }
}

} // namespace

QString buttonName(ControllerButton button, ControllerFamily family, AppLanguage language) {
    const auto place = static_cast<int>(button);
    if (isNumbered(button)) {
        return text("button.number.format", language,
                    {std::to_string(place - static_cast<int>(ControllerButton::first) + 1)});
    }
    const auto word = family == ControllerFamily::shapes ? shape(button) : std::nullopt;
    const std::string_view label = labelsOf(family)[static_cast<std::size_t>(place)];
    return word ? text(*word, language) : QString::fromUtf8(label.data(), qsizetype(label.size()));
}

} // namespace vorbel
