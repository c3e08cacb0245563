// The whole game, as a process of its own: what it takes to start, to wait and to hold.
#pragma once

namespace vorbel::bench {

// The arguments that make this program the game, or nothing but a window of the toolkit, to be measured by
// itself, instead of the bench.
inline constexpr const char* gameArgument = "--game";
inline constexpr const char* emptyArgument = "--empty";

// Starts this program several times as either and prints the medians. Needs an application object. Returns an
// exit status.
int measureGame();

// Is the game until it has measured itself; `startedAt`: Moment::wall when the process was asked for.
int runGame(char* programName, double startedAt);
int runEmptyWindow(char* programName, double startedAt);

} // namespace vorbel::bench
