#include "app/speech/AimTone.h"

#include "app/match/MatchChanges.h"
#include "app/options/Options.h"
#include "engine/GameLogic.h"
#include "narration/Tones.h"

#include <utility>

namespace vorbel {

AimTone::AimTone(const GameLogic& match, const Options& options, MatchChanges& changes, Audio& audio,
                 MainQueue& queue)
    : match_(match), options_(options), changes_(changes), audio_(audio), queue_(queue) {
    connect(&options_, &Options::changed, this, &AimTone::followOption);
    followOption();
}

void AimTone::followOption() {
    const bool isOn = options_.isOn(Option::tones);
    if (isOn && !following_) {
        tone_ = tone_ ? std::move(tone_) : audio_.tone();
        last_ = aimed();
        following_ = connect(&changes_, &MatchChanges::changed, this, &AimTone::follow);
    } else if (!isOn && following_) {
        disconnect(std::exchange(following_, {}));
        silence();
    }
}

void AimTone::follow() {
    const Aimed now = aimed();
    const bool moved = std::exchange(last_, now) != now;
    if (!humanAims()) {
        silence();
    } else if (moved) {
        sound(now);
    }
}

void AimTone::sound(const Aimed& aimed) {
    if (tone_) {
        tone_->sound(narration::pitchOf(aimed.power), narration::panOf(aimed.angle));
        untilSilent_ = Lifetime();
        queue_.postAfter(lingering, untilSilent_.whileAlive([this] { silence(); }));
    }
}

void AimTone::silence() {
    untilSilent_ = Lifetime();
    if (tone_) {
        tone_->silence();
    }
}

bool AimTone::humanAims() const {
    return !match_.isCurrentTurnAI() &&
           (match_.aimState == AimState::aimingAngle || match_.aimState == AimState::aimingPower);
}

AimTone::Aimed AimTone::aimed() const {
    return {match_.aimAngle, match_.aimPower};
}

} // namespace vorbel
