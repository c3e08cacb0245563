#include "app/keys/Hints.h"

#include "app/keys/ButtonName.h"
#include "app/keys/GameControls.h"
#include "app/keys/PressedKey.h"

#include <QEvent>

#include <array>
#include <utility>

namespace vorbel {

namespace {

struct Direction {
    std::string_view sign;
    GameAction action;
};

constexpr std::array directions{Direction{"←", GameAction::left}, Direction{"→", GameAction::right},
                                Direction{"↑", GameAction::up}, Direction{"↓", GameAction::down}};

// What stands in brackets is an arrow, or else, in each language by its own name, the key that throws.
GameAction actionMeant(std::string_view given) {
    for (const auto& [sign, action] : directions) {
        if (given == sign) {
            return action;
        }
    }
    return GameAction::accept;
}

// The text, with another label for each that stands in brackets.
template <typename Label>
std::string relabelled(const std::string& text, const Label& label) {
    std::string result;
    std::size_t done = 0;
    for (std::size_t open = text.find('['); open != std::string::npos; open = text.find('[', done)) {
        const std::size_t close = text.find(']', open);
        if (close == std::string::npos) {
            break;
        }
        const std::string_view given = std::string_view(text).substr(open + 1, close - open - 1);
        result += text.substr(done, open + 1 - done) + label(given) + ']';
        done = close + 1;
    }
    return result + text.substr(done);
}

} // namespace

Hints::Hints(const GameControls& controls) : controls_(controls) {
    connect(&controls_, &GameControls::changed, this, &Hints::changed);
}

std::string Hints::label(std::string_view given, GameAction action, AppLanguage language) const {
    const std::vector<int>& buttons = controls_.of(GameControls::Device::controller).of(action);
    if (controller_ && !buttons.empty()) {
        return buttonName(static_cast<ControllerButton>(buttons.front()), *controller_, language)
            .toStdString();
    }
    const std::vector<int>& keys = controls_.of(GameControls::Device::keyboard).of(action);
    if (keys.empty()) {
        return "–";
    }
    return keys.front() == rowOf(action).key ? std::string(given)
                                             : keyName(keys.front(), language).toStdString();
}

std::string Hints::inForce(const std::string& message, AppLanguage language) const {
    return relabelled(message,
                      [&](std::string_view given) { return label(given, actionMeant(given), language); });
}

std::string Hints::inForce(const std::string& text, GameAction action, AppLanguage language) const {
    return relabelled(text, [&](std::string_view given) { return label(given, action, language); });
}

void Hints::useController(ControllerFamily family) {
    if (std::exchange(controller_, family) != family) {
        emit changed();
    }
}

void Hints::useKeyboard() {
    if (std::exchange(controller_, std::nullopt)) {
        emit changed();
    }
}

bool Hints::eventFilter(QObject* /*receiver*/, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        useKeyboard();
    }
    return false;
}

} // namespace vorbel
