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

} // namespace

Hints::Hints(const GameControls& controls) : controls_(controls) {
    connect(&controls_, &GameControls::changed, this, &Hints::changed);
}

std::string Hints::label(std::string_view given, AppLanguage language) const {
    const GameAction action = actionMeant(given);
    if (controller_) {
        const int button = controls_.of(GameControls::Device::controller).of(action).front();
        return buttonName(static_cast<ControllerButton>(button), *controller_, language).toStdString();
    }
    const int key = controls_.of(GameControls::Device::keyboard).of(action).front();
    return key == rowOf(action).key ? std::string(given) : keyName(key, language).toStdString();
}

std::string Hints::inForce(const std::string& message, AppLanguage language) const {
    std::string result;
    std::size_t done = 0;
    for (std::size_t open = message.find('['); open != std::string::npos; open = message.find('[', done)) {
        const std::size_t close = message.find(']', open);
        if (close == std::string::npos) {
            break;
        }
        const std::string_view given = std::string_view(message).substr(open + 1, close - open - 1);
        result += message.substr(done, open + 1 - done) + label(given, language) + ']';
        done = close + 1;
    }
    return result + message.substr(done);
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
