// What is heard of a match. A sound that is missing is silent.
#pragma once

#include "math/Vector.h"
#include "platform/Platform.h"

#include <memory>

namespace vorbel {

class MatchSounds {
public:
    // Both must outlive this.
    MatchSounds(Audio& audio, const Resources& resources);

    // From the beginning, also while the former one still sounds.
    void playThrow() { restart(throw_.get()); }
    void playHit(const Vec3& place); // on the court; heard there, between its side lines
    void playScore() { restart(score_.get()); }

    // The murmur of the crowd, for ever. Says so on the console when there is a file that cannot be played.
    void startCrowdNoise();

private:
    static void restart(SystemSound* sound);

    Audio& audio_;
    const Resources& resources_;
    std::unique_ptr<SystemSound> throw_;
    std::unique_ptr<SystemSound> hit_;
    std::unique_ptr<SystemSound> score_;
    std::unique_ptr<AudioPlayer> crowd_;
};

} // namespace vorbel
