// Keys as the player knows them: which one was pressed, what it is called, whether it can get another meaning.
#pragma once

#include "l10n/AppLanguage.h"

#include <QString>

class QKeyEvent;

namespace vorbel {

// The key of the event, without modifiers. Letters are those of a Latin keyboard, whatever the layout: a key
// stays the same one when the layout changes.
[[nodiscard]] int pressedKey(const QKeyEvent& event);

[[nodiscard]] bool isModifier(int key);

// Whether it leads through the menus, or out of them, and can therefore mean nothing else.
[[nodiscard]] bool belongsToMenus(int key);

// Whether a player can give it a meaning. False for what is no key at all.
[[nodiscard]] bool isFreeKey(int key);

// What is written on it, in the player's language: "Space", "←", "F5".
[[nodiscard]] QString keyName(int key, AppLanguage language);

} // namespace vorbel
