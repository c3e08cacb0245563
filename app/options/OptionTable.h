// Every option of the game. Left as they are, they change nothing.
#pragma once

#include "app/keys/GameAction.h"
#include "l10n/TextKey.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace vorbel {

enum class Option : std::uint8_t {
    powerPace,
    fineAim,
    switchOn,
    switchPace,
    switchAsks,
    switchRest,
    switchKey,
    courtButtons,
    controller,
    speech,
    tones,
    hitPlaces,
    textSize,
    ballMarks,
    ballOutlines,
    clearPointer,
    solidPanels,
    mute,
    crowdVolume,
    effectVolume,
    soundNotes,
    menuPauses,
    askToLeave,
};

// One of the values that an option can have.
struct OptionChoice {
    int value; // what is stored
    // A key of the string table, or the text itself. A key that ends in ".format" shows the value, in thousands.
    std::string_view label;
};

struct OptionRow {
    Option option;
    std::string_view name; // in the defaults, after their common prefix
    TextKey group;         // rows of one group stand together
    TextKey title;
    TextKey help; // one sentence
    std::span<const OptionChoice>
        choices;  // none: its value is a key that the player presses when asked, or 0
    int standard; // the value in the given game; one of the choices
    // The action whose key the help names, in brackets.
    std::optional<GameAction> named{};

    // Whether it is simply off (0) or on (1).
    [[nodiscard]] bool isSwitch() const { return !isKey() && choices.front().label.empty(); }
    [[nodiscard]] bool isKey() const { return choices.empty(); }
};

// In the order in which they are shown, which is that of Option.
[[nodiscard]] std::span<const OptionRow> optionRows();
[[nodiscard]] const OptionRow& rowOf(Option option);

} // namespace vorbel
