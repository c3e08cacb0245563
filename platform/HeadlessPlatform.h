// Everything that a match needs when there is no window, no sound and no clock.
#pragma once

#include "platform/Platform.h"
#include "platform/runloop/VirtualQueue.h"

namespace vorbel {

struct HeadlessPlatform {
    explicit HeadlessPlatform(std::uint64_t seed) : random(seed) {}

    VirtualQueue queue;
    SeededRandom random;
    SilentAudio audio;
    Resources resources; // finds nothing

    [[nodiscard]] Platform services() { return {queue, random, audio, resources}; }
};

} // namespace vorbel
