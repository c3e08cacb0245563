// The services that a match needs from the world outside.
#pragma once

#include "platform/audio/Audio.h"
#include "platform/random/RandomSource.h"
#include "platform/resources/Resources.h"
#include "platform/runloop/MainQueue.h"

namespace vorbel {

// References to services that outlive every match made with them.
struct Platform {
    MainQueue& mainQueue;
    RandomSource& random;
    Audio& audio;
    const Resources& resources;
};

} // namespace vorbel
