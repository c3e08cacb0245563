// The fonts that show each script.
#pragma once

#include "l10n/AppLanguage.h"

#include <QString>

namespace vorbel {

// The family for texts in the language. Chinese, Japanese and Korean share characters whose shapes differ, so
// each has its own; Arabic, Devanagari and Thai come in the cuts for interfaces, whose lines are no higher
// than those of other scripts. What a family lacks comes from "Noto Sans", then from "Noto Color Emoji".
[[nodiscard]] QString fontFamily(AppLanguage language);

// The family for the language's own name in a list of all. Those three read the same in each of their fonts,
// which are large: one of them does for all names.
[[nodiscard]] QString nameFontFamily(AppLanguage language);

// Makes the substitutes known and the default font "Noto Sans", and keeps the toolkit from telling that a font lacks
// the script of another language while the language changes.
// Call once, after the application object was made.
void prepareFonts();

// The family of all texts until the window has set that of the player's language: asked for a script that a
// family lacks, the toolkit complains before it looks further. Call before the window is made.
void setDefaultFont(AppLanguage language);

[[nodiscard]] constexpr bool isRightToLeft(AppLanguage language) {
    return language == AppLanguage::ar;
}

} // namespace vorbel
