#include "engine/MatchSounds.h"

#include "rules/CourtGeometry.h"

#include <iostream>

namespace vorbel {

MatchSounds::MatchSounds(Audio& audio, const Resources& resources)
    : audio_(audio),
      resources_(resources),
      throw_(audio.systemSound("Pop")),
      hit_(audio.systemSound("Tink")),
      score_(audio.systemSound("Glass")) {}

void MatchSounds::playHit(const Vec3& place) {
    if (hit_) {
        hit_->setPan(static_cast<float>(place.x / court::sideLine));
    }
    restart(hit_.get());
}

void MatchSounds::startCrowdNoise() {
    constexpr float volume = 0.4F; // of full: a murmur behind the effects
    constexpr int forever = -1;
    const auto file = resources_.find("crowd", "mp3");
    if (!file) {
        return;
    }
    auto player = audio_.player(*file);
    if (!player) {
        std::cout << "Не удалось запустить звук трибун" << std::endl;
        return;
    }
    crowd_ = std::move(player);
    crowd_->setLoopCount(forever);
    crowd_->setVolume(volume);
    crowd_->play();
}

void MatchSounds::restart(SystemSound* sound) {
    if (sound != nullptr) {
        sound->stop();
        sound->play();
    }
}

} // namespace vorbel
