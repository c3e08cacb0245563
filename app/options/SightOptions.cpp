#include "app/options/SightOptions.h"

#include "app/window/MatchChanges.h"
#include "scene/Pointer.h"

#include <utility>

namespace vorbel {

SightOptions::SightOptions(Scene& scene, const Options& options, MatchChanges& changes)
    : scene_(scene), options_(options), changes_(changes) {
    connect(&options_, &Options::changed, this, &SightOptions::handOver);
    handOver();
}

void SightOptions::handOver() {
    const bool clear = options_.isOn(Option::clearPointer);
    if (std::exchange(clearPointer_, clear) != clear) {
        arena::setPointerLook(scene_, clear ? arena::PointerLook::clear : arena::PointerLook::usual);
        changes_.tellSoon();
    }
}

} // namespace vorbel
