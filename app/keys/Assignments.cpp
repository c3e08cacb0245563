#include "app/keys/Assignments.h"

#include <algorithm>
#include <set>
#include <sstream>

namespace vorbel {

namespace {

std::optional<GameAction> actionNamed(std::string_view name) {
    const auto row = std::ranges::find(actionRows(), name, &ActionRow::name);
    return row == actionRows().end() ? std::nullopt : std::optional(row->action);
}

// A number in decimal, and nothing else.
std::optional<int> number(const std::string& word) {
    std::istringstream stream(word);
    int value = 0;
    return stream >> value && stream.eof() ? std::optional(value) : std::nullopt;
}

std::size_t place(GameAction action) {
    return static_cast<std::size_t>(action);
}

} // namespace

Assignments::Assignments(int ActionRow::*standard) {
    for (const ActionRow& row : actionRows()) {
        presses_.push_back(row.*standard == noPress ? std::vector<int>() : std::vector{row.*standard});
    }
}

const std::vector<int>& Assignments::of(GameAction action) const {
    return presses_[place(action)];
}

std::optional<GameAction> Assignments::actionOf(int press) const {
    for (const ActionRow& row : actionRows()) {
        if (std::ranges::find(of(row.action), press) != of(row.action).end()) {
            return row.action;
        }
    }
    return std::nullopt;
}

bool Assignments::isIndispensable(int press) const {
    const auto action = actionOf(press);
    return action && rowOf(*action).isNeeded && of(*action).size() == 1;
}

bool Assignments::give(GameAction action, int press) {
    if (actionOf(press) == action) {
        return true;
    }
    if (of(action).size() >= most || !takeAway(press)) {
        return false;
    }
    presses_[place(action)].push_back(press);
    return true;
}

bool Assignments::takeAway(int press) {
    if (isIndispensable(press)) {
        return false;
    }
    for (std::vector<int>& presses : presses_) {
        std::erase(presses, press);
    }
    return true;
}

std::string Assignments::text() const {
    std::string text;
    for (const ActionRow& row : actionRows()) {
        text += text.empty() ? "" : " ";
        text += row.name;
        for (const int press : of(row.action)) {
            text += ' ';
            text += std::to_string(press);
        }
    }
    return text;
}

void Assignments::read(std::string_view text, bool (*isPress)(int)) {
    if (auto lists = parsed(text, *this, isPress)) {
        presses_ = std::move(*lists);
    }
}

std::optional<Assignments::Lists> Assignments::parsed(std::string_view text, const Assignments& otherwise,
                                                      bool (*isPress)(int)) {
    std::vector<std::optional<std::vector<int>>> named(actionRows().size());
    std::set<int> given;
    std::istringstream words{std::string(text)};
    std::optional<GameAction> action;
    for (std::string word; words >> word;) {
        if (const auto next = actionNamed(word)) {
            action = next;
            named[place(*action)].emplace();
        } else if (const auto press = number(word);
                   action && press && isPress(*press) && given.insert(*press).second) {
            named[place(*action)]->push_back(*press);
        } else {
            return std::nullopt;
        }
    }
    Lists lists;
    for (const ActionRow& row : actionRows()) {
        lists.push_back(named[place(row.action)].value_or(otherwise.of(row.action)));
        if (!named[place(row.action)]) {
            std::erase_if(lists.back(), [&](int press) { return given.contains(press); });
        }
        if (lists.back().size() > most || (row.isNeeded && lists.back().empty())) {
            return std::nullopt;
        }
    }
    return lists;
}

} // namespace vorbel
