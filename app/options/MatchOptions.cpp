#include "app/options/MatchOptions.h"

#include "engine/GameLogic.h"

namespace vorbel {

MatchOptions::MatchOptions(GameLogic& match, const Options& options, const OpenMenu& menu)
    : match_(match), options_(options), menu_(menu) {
    connect(&options_, &Options::changed, this, &MatchOptions::handOver);
    connect(&menu_, &OpenMenu::menuScreenChanged, this, &MatchOptions::handOver);
    handOver();
}

void MatchOptions::handOver() {
    match_.setPowerPace(options_.powerPace());
    if (options_.isOn(Option::menuPauses) && !menu_.isHidden()) {
        match_.pause();
    } else {
        match_.resume();
    }
}

} // namespace vorbel
