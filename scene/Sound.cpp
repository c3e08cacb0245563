#include "engine/GameLogic.h"

#include <iostream>

namespace vorbel {

namespace {

constexpr float crowdVolume = 0.4F; // of full: a murmur behind the effects
constexpr int forever = -1;

} // namespace

void GameLogic::startCrowdNoise() {
    const auto file = platform_.resources.find("crowd", "mp3");
    if (!file) {
        return;
    }
    auto player = platform_.audio.player(*file);
    if (!player) {
        std::cout << "Не удалось запустить звук трибун" << std::endl;
        return;
    }
    audioPlayer_ = std::move(player);
    audioPlayer_->setLoopCount(forever);
    audioPlayer_->setVolume(crowdVolume);
    audioPlayer_->play();
}

void GameLogic::restart(SystemSound* sound) {
    if (sound != nullptr) {
        sound->stop();
        sound->play();
    }
}

} // namespace vorbel
