// Pictures of screens, kept for whoever wants to look at them.
#pragma once

#include "l10n/AppLanguage.h"

#include <QImage>

namespace vorbel {

// Saves it as LANGUAGE-SCREEN.png in the folder that the variable VORBEL_MENU_PICTURES names, if it is set.
void keep(const QImage& picture, AppLanguage language, const char* screen);

} // namespace vorbel
