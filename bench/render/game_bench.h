// The whole game, as a process of its own: what it takes to start, to wait and to hold.
#pragma once

namespace vorbel::bench {

// The argument that makes this program the game, to be measured by itself, instead of the bench.
inline constexpr const char* gameArgument = "--game";

// Starts this program several times as the game and prints the medians. Needs an application object. Returns
// an exit status.
int measureGame();

// Is the game until it has measured itself; `startedAt`: Moment::wall when the process was asked for.
int runGame(char* programName, double startedAt);

} // namespace vorbel::bench
