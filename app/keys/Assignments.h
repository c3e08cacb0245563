// Which action each key of the keyboard, or each button of a controller, has been given.
#pragma once

#include "app/keys/GameAction.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vorbel {

// A press is a number that only its device understands. Every action has up to three, in the order in which they were
// given, and no press has two actions.
class Assignments {
public:
    static constexpr std::size_t most = 3; // presses of one action

    // As in the given game: from one column of the table.
    explicit Assignments(int ActionRow::*standard);

    [[nodiscard]] const std::vector<int>& of(GameAction action) const;
    [[nodiscard]] std::optional<GameAction> actionOf(int press) const;
    // Whether an action that nobody can play without has nothing else.
    [[nodiscard]] bool isIndispensable(int press) const;

    // Takes the press from the action that has it, unless it is indispensable there, or the new one has enough:
    // false then, and nothing is changed.
    bool give(GameAction action, int press);
    bool takeAway(int press); // false: it is indispensable

    // As it is stored: the actions by name, each followed by its presses.
    [[nodiscard]] std::string text() const;
    // What such a text says. An action that it does not name has what it has now, unless that is given away. A text
    // that is damaged, or with which nobody could play, is left alone.
    void read(std::string_view text, bool (*isPress)(int));

    bool operator==(const Assignments&) const = default;

private:
    using Lists = std::vector<std::vector<int>>; // in the order of GameAction

    [[nodiscard]] static std::optional<Lists> parsed(std::string_view text, const Assignments& otherwise,
                                                     bool (*isPress)(int));

    Lists presses_;
};

} // namespace vorbel
