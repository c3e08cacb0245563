// What is written on a controller's buttons.
#pragma once

#include "l10n/AppLanguage.h"
#include "platform/controllers/Controllers.h"

#include <QString>

namespace vorbel {

// The four buttons at the right hand of one family are shapes: they are named in the player's language.
[[nodiscard]] QString buttonName(ControllerButton button, ControllerFamily family, AppLanguage language);

} // namespace vorbel
