#include "app/options/Options.h"

#include "app/keys/GameControls.h"
#include "app/keys/PressedKey.h"

#include <algorithm>
#include <utility>

namespace vorbel {

namespace {

bool isChoice(const OptionRow& row, int value) {
    if (row.isKey()) {
        return value == 0 || isFreeKey(value);
    }
    return std::ranges::find(row.choices, value, &OptionChoice::value) != row.choices.end();
}

int storedValue(const UserDefaults& defaults, const OptionRow& row) {
    const int stored = defaults.integer(Options::storageKey(row)).value_or(row.standard);
    return isChoice(row, stored) ? stored : row.standard;
}

} // namespace

Options::Options(UserDefaults& defaults) : defaults_(defaults) {
    for (const OptionRow& row : optionRows()) {
        values_.push_back(storedValue(defaults, row));
    }
}

std::string Options::storageKey(const OptionRow& row) {
    return "boccia_option_" + std::string(row.name);
}

int Options::value(Option option) const {
    return values_[static_cast<std::size_t>(option)];
}

double Options::powerPace() const {
    constexpr double full = 1000; // as the class has it
    return value(Option::powerPace) / full;
}

double Options::textScale() const {
    constexpr double full = 100; // percent
    return value(Option::textSize) / full;
}

void Options::set(Option option, int value) {
    const OptionRow& row = rowOf(option);
    if (!isChoice(row, value) || std::exchange(values_[static_cast<std::size_t>(option)], value) == value) {
        return;
    }
    defaults_.setInteger(storageKey(row), value);
    emit changed();
}

void Options::toggleMute() {
    set(Option::mute, isOn(Option::mute) ? 0 : 1);
}

void Options::reset(UserDefaults& defaults) {
    GameControls::reset(defaults);
    for (const OptionRow& row : optionRows()) {
        defaults.setInteger(storageKey(row), row.standard);
    }
}

} // namespace vorbel
