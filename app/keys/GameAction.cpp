#include "app/keys/GameAction.h"

#include "platform/controllers/Controllers.h"

#include <Qt>

#include <array>
#include <cstddef>

namespace vorbel {

namespace {

constexpr int button(ControllerButton place) {
    return static_cast<int>(place);
}

using enum ControllerButton;

constexpr auto rows = std::to_array<ActionRow>({
    {GameAction::left, "left", "aim.left", "", Qt::Key_Left, button(left), true, true},
    {GameAction::right, "right", "aim.right", "", Qt::Key_Right, button(right), true, true},
    {GameAction::up, "up", "aim.up", "", Qt::Key_Up, button(up), true, true},
    {GameAction::down, "down", "aim.down", "", Qt::Key_Down, button(down), true, true},
    {GameAction::accept, "accept", "controls.accept", "", Qt::Key_Space, button(south), true, false},
    {GameAction::takeBack, "takeBack", "aim.takeBack", "", Qt::Key_Backspace, button(east), false, false},
    {GameAction::morePower, "morePower", "label.throwPower", " +10", Qt::Key_PageUp, noPress, false, true},
    {GameAction::lessPower, "lessPower", "label.throwPower", " −10", Qt::Key_PageDown, noPress, false, true},
    {GameAction::everything, "everything", "controls.everything", "", Qt::Key_W, noPress, false, false},
    {GameAction::mute, "mute", "options.mute", "", Qt::Key_M, noPress, false, false},
    {GameAction::menu, "menu", "menu.mainMenu", "", noPress, button(start), false, false},
});

consteval bool standInTheirPlaces() {
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (static_cast<std::size_t>(rows[i].action) != i) {
            return false;
        }
    }
    return true;
}
static_assert(standInTheirPlaces());

} // namespace

std::span<const ActionRow> actionRows() {
    return rows;
}

const ActionRow& rowOf(GameAction action) {
    return rows[static_cast<std::size_t>(action)];
}

} // namespace vorbel
