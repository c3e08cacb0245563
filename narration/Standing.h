// How an end stands, in words.
#pragma once

#include "l10n/AppLanguage.h"
#include "rules/Position.h"
#include "rules/Scoring.h"
#include "rules/TurnOrder.h"

#include <string>

namespace vorbel::narration {

struct Standing {
    Position position; // of the balls that have been thrown: one that waits in its box is none of them
    BallColor thrower = BallColor::red; // red or blue, who sees the jack
    BallsLeft left{};
    Points score{};
};

// Which side is closest to the jack, and how close the other side is. Distances are those that count for the
// score. Empty without a jack or any ball.
[[nodiscard]] std::string closest(const Position& position, AppLanguage language);

// The same with every ball, from the closest to the farthest.
[[nodiscard]] std::string order(const Position& position, AppLanguage language);

[[nodiscard]] std::string ballsLeft(BallsLeft left, AppLanguage language);
[[nodiscard]] std::string score(Points score, AppLanguage language);

// Where everything lies, and what it means so far.
[[nodiscard]] std::string everything(const Standing& standing, AppLanguage language);

} // namespace vorbel::narration
