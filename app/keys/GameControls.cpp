#include "app/keys/GameControls.h"

#include "app/keys/PressedKey.h"
#include "platform/controllers/Controllers.h"

#include <QKeySequence>

#include <array>

namespace vorbel {

namespace {

constexpr std::string_view keysKey = "boccia_option_keys";
constexpr std::string_view buttonsKey = "boccia_option_buttons";

// Menus are gone through by other keys: these neither press nor move anything there.
constexpr std::array givenKeys{Qt::Key_Space, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down};

QString sequence(int key) {
    return QKeySequence(key).toString(QKeySequence::PortableText);
}

} // namespace

GameControls::GameControls(UserDefaults& defaults) : defaults_(defaults) {
    keys_.read(defaults.text(keysKey).value_or(""), &isFreeKey);
    buttons_.read(defaults.text(buttonsKey).value_or(""), &isControllerButton);
}

const Assignments& GameControls::of(Device device) const {
    return device == Device::keyboard ? keys_ : buttons_;
}

bool GameControls::give(Device device, GameAction action, int press) {
    Assignments next = of(device);
    const bool isGiven = next.give(action, press);
    keep(device, next);
    return isGiven;
}

bool GameControls::takeAway(Device device, int press) {
    Assignments next = of(device);
    const bool isTaken = next.takeAway(press);
    keep(device, next);
    return isTaken;
}

void GameControls::keep(Device device, const Assignments& next) {
    if (next == of(device)) {
        return;
    }
    (device == Device::keyboard ? keys_ : buttons_) = next;
    defaults_.setText(device == Device::keyboard ? keysKey : buttonsKey, next.text());
    emit changed();
}

void GameControls::reset() {
    keys_ = Assignments(&ActionRow::key);
    buttons_ = Assignments(&ActionRow::button);
    reset(defaults_);
    emit changed();
}

void GameControls::reset(UserDefaults& defaults) {
    defaults.setText(keysKey, "");
    defaults.setText(buttonsKey, "");
}

bool GameControls::repeats(int key) const {
    const auto action = keys_.actionOf(key);
    return action && rowOf(*action).repeats;
}

QVariantList GameControls::sequences(GameAction action) const {
    QVariantList list;
    for (const int key : keys_.of(action)) {
        list.append(sequence(key));
    }
    return list;
}

QVariantList GameControls::fine(GameAction action) const {
    QVariantList list;
    for (const int key : keys_.of(action)) {
        list.append(QStringLiteral("Shift+") + sequence(key));
    }
    return list;
}

QVariantList GameControls::given() {
    QVariantList list;
    for (const int key : givenKeys) {
        list.append(sequence(key));
    }
    return list;
}

QVariantList GameControls::idle() const {
    QVariantList list;
    for (const int key : givenKeys) {
        if (!keys_.actionOf(key)) {
            list.append(sequence(key));
        }
    }
    return list;
}

} // namespace vorbel
