// The keys and buttons that messages name, as they are for this player.
#pragma once

#include "app/keys/GameAction.h"
#include "l10n/AppLanguage.h"
#include "platform/controllers/Controllers.h"

#include <QObject>

#include <optional>
#include <string>
#include <string_view>

namespace vorbel {

class GameControls;

// Messages name the keys of the given game, in brackets. Here they get the name of the player's own, or of the
// controller's button while a controller is what was used last. Main thread only.
class Hints final : public QObject {
    Q_OBJECT

public:
    // The controls must outlive it.
    explicit Hints(const GameControls& controls);

    // The message as the player needs it; unchanged in the given game.
    [[nodiscard]] std::string inForce(const std::string& message, AppLanguage language) const;
    // The same of a text whose brackets name the key of that action; a dash where nothing does it.
    [[nodiscard]] std::string inForce(const std::string& text, GameAction action, AppLanguage language) const;

    void useController(ControllerFamily family); // was used just now
    void useKeyboard();

    bool eventFilter(QObject* receiver, QEvent* event) override; // of the application: looks for keys

signals:
    void changed();

private:
    [[nodiscard]] std::string label(std::string_view given, GameAction action, AppLanguage language) const;

    const GameControls& controls_;
    std::optional<ControllerFamily> controller_; // while it is what was used last
};

} // namespace vorbel
