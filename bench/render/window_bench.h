// The real window: frames a second, and what it costs when nothing moves.
#pragma once

namespace vorbel {
class Resources;
}

namespace vorbel::bench {

// Prints its rows; `startedAt` is Moment::wall at the start of the program. Returns an exit status.
int measureWindow(const Resources& resources, double startedAt);

} // namespace vorbel::bench
