// A match told throw by throw.
#pragma once

#include "tools/sim/MatchPlayer.h"

#include <iosfwd>

namespace vorbel::sim {

// One line: end, what was thrown by whom, the aim, where the balls came to rest, what came of it.
void writeThrow(std::ostream& out, const Throw& played, const GameLogic& game);

// "score 2:7  ends 2:0 0:1 0:3 0:3"
void writeScore(std::ostream& out, const GameLogic& game);

// One line: the score, the ends, the time it took on the clock of the match.
void writeResult(std::ostream& out, const Pairing& pairing, const MatchPlayer& match);

} // namespace vorbel::sim
