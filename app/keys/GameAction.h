// What keys, and buttons of a controller, can do in the game.
#pragma once

#include "l10n/TextKey.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace vorbel {

enum class GameAction : std::uint8_t {
    left,
    right,
    up,
    down,
    accept, // begins to aim, locks, throws, goes on
    takeBack,
    morePower,
    lessPower,
    everything, // says where everything lies
    mute,
    menu,
};

inline constexpr int noPress = -1;

struct ActionRow {
    GameAction action;
    std::string_view name; // as it is stored
    TextKey title;
    std::string_view suffix; // of the title, the same in every language
    int key;                 // in the given game, by Qt's number, or noPress
    int button;              // likewise, a ControllerButton
    bool isNeeded;           // nobody could play without it
    bool repeats;            // while it is held
};

[[nodiscard]] std::span<const ActionRow> actionRows(); // in the order of GameAction
[[nodiscard]] const ActionRow& rowOf(GameAction action);

} // namespace vorbel
