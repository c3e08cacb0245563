// Where jack and ball lie, in words. Lengths are seen down the court, from the throwing line to the far end.
#pragma once

#include "l10n/AppLanguage.h"
#include "rules/Position.h"

#include <string>

namespace vorbel::narration {

// The jack as that side's thrower sees it: how far away, and how far to the side of straight ahead.
[[nodiscard]] std::string jack(const Position& position, BallColor thrower, AppLanguage language);

// Where a ball came to rest: short of the jack or beyond it, and how far to which side of it.
[[nodiscard]] std::string atRest(const Vec3& ball, const Vec3& jack, AppLanguage language);

} // namespace vorbel::narration
