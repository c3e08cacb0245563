// Whether all text on the screen can be read.
#pragma once

#include "l10n/AppLanguage.h"
#include "l10n/Country.h"

#include <QQuickItem>
#include <QString>
#include <QStringList>

namespace vorbel {

// One line for each text below the item that is cut off, leaves its parents
// or the window, or overlaps another text. What a scrolling area hides for
// the moment is not looked at. The window must have been drawn before.
[[nodiscard]] QStringList unreadableTexts(QQuickItem& root);

// The country whose name takes the most room.
[[nodiscard]] Country longestNamed(AppLanguage language);

} // namespace vorbel
