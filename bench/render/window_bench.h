// The real window: frames a second, and what it costs when nothing moves.
#pragma once

namespace vorbel {
class Resources;
}

namespace vorbel::bench {

// Prints its rows; returns an exit status.
int measureWindow(const Resources& resources);

} // namespace vorbel::bench
