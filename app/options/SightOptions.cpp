#include "app/options/SightOptions.h"

#include "app/match/MatchChanges.h"
#include "scene/Pointer.h"

#include <utility>

namespace vorbel {

SightOptions::SightOptions(Scene& scene, const Options& options, MatchChanges& changes)
    : scene_(scene), options_(options), changes_(changes) {
    connect(&options_, &Options::changed, this, &SightOptions::handOver);
    connect(&changes_, &MatchChanges::changed, this, &SightOptions::dressNewBalls);
    handOver();
}

void SightOptions::handOver() {
    const bool clear = options_.isOn(Option::clearPointer);
    if (std::exchange(clearPointer_, clear) != clear) {
        arena::setPointerLook(scene_, clear ? arena::PointerLook::clear : arena::PointerLook::usual);
        changes_.tellSoon();
    }
    const BallLook balls{options_.isOn(Option::ballMarks), options_.isOn(Option::ballOutlines)};
    if (std::exchange(balls_, balls) != balls) {
        setBallLook(scene_, balls);
        changes_.tellSoon();
    }
}

void SightOptions::dressNewBalls() {
    if (balls_ != BallLook{}) {
        setBallLook(scene_, balls_);
    }
}

} // namespace vorbel
