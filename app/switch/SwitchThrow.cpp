#include "app/switch/SwitchThrow.h"

#include "app/options/Options.h"
#include "engine/GameLogic.h"

#include <utility>

namespace vorbel {

SwitchThrow::Stage SwitchThrow::stage() const {
    if (match_.phase == GamePhase::endOver || match_.phase == GamePhase::gameOver) {
        return Stage::goOn;
    }
    if (match_.isCurrentTurnAI()) {
        return Stage::waiting;
    }
    switch (match_.aimState) {
    case AimState::idle:
        return Stage::begin;
    case AimState::aimingAngle:
        return angleLocked_ ? Stage::pitch : Stage::angle;
    case AimState::aimingPower:
        return asked_ ? Stage::asked : Stage::power;
    case AimState::thrown:
        break;
    }
    return Stage::waiting;
}

void SwitchThrow::follow() {
    angleLocked_ = angleLocked_ && match_.aimState == AimState::aimingAngle;
    if (asked_ && match_.aimState != AimState::aimingPower) {
        asked_ = false;
        match_.setPowerPace(options_.powerPace());
    }
    if (std::exchange(followed_, stage()) != stage()) {
        beats_ = 0;
        second_ = false;
        direction_ = 1;
    }
}

// After both choices were offered twice.
bool SwitchThrow::rests() const {
    return stage() == Stage::begin && options_.isOn(Option::speech) && beats_ >= 4 * beatsOfAChoice;
}

void SwitchThrow::beat() {
    follow();
    if (rests()) {
        return;
    }
    switch (stage()) {
    case Stage::begin:
    case Stage::asked:
        if (++beats_ % beatsOfAChoice == 0) {
            second_ = !second_;
        }
        break;
    case Stage::angle:
        sweepAngle();
        break;
    case Stage::pitch:
        sweepPitch();
        break;
    case Stage::power:
        sweepPower();
        break;
    case Stage::waiting:
    case Stage::goOn:
        break;
    }
}

SwitchThrow::Result SwitchThrow::press() {
    follow();
    if (rests()) {
        beats_ = 0;
        return Result::done;
    }
    switch (stage()) {
    case Stage::begin:
        if (second_) {
            return Result::menuWanted;
        }
        match_.processInput();
        break;
    case Stage::angle:
        aim();
        break;
    case Stage::power:
        lockPower();
        break;
    case Stage::asked:
        answer();
        break;
    case Stage::pitch:
    case Stage::goOn:
        match_.processInput();
        break;
    case Stage::waiting:
        break;
    }
    follow();
    return Result::done;
}

void SwitchThrow::aim() {
    angleLocked_ = aim::mayRaise(match_.playerClass);
    if (!angleLocked_) {
        match_.processInput();
    }
}

void SwitchThrow::lockPower() {
    asked_ = options_.isOn(Option::switchAsks);
    if (asked_) {
        match_.setPowerPace(0); // it stands as it was locked
    } else {
        match_.processInput();
    }
}

void SwitchThrow::answer() {
    second_ ? aimAnew() : match_.processInput();
}

void SwitchThrow::aimAnew() {
    match_.takeBack();
    match_.takeBack();
    match_.processInput();
}

void SwitchThrow::sweepAngle() {
    direction_ > 0 ? match_.moveAimRight() : match_.moveAimLeft();
    if (match_.aimAngle >= aim::angleLimit) {
        direction_ = -1;
    } else if (match_.aimAngle <= -aim::angleLimit) {
        direction_ = 1;
    }
}

void SwitchThrow::sweepPitch() {
    direction_ > 0 ? match_.moveAimUp() : match_.moveAimDown();
    if (match_.aimPitch >= aim::pitchLimit) {
        direction_ = -1;
    } else if (match_.aimPitch <= 0) {
        direction_ = 1;
    }
}

void SwitchThrow::sweepPower() {
    match_.changePower(direction_ * aim::powerByHandStep);
    if (match_.aimPower >= aim::highestPower) {
        direction_ = -1;
    } else if (match_.aimPower <= aim::lowestPower) {
        direction_ = 1;
    }
}

std::optional<TextKey> SwitchThrow::prompt() const {
    if (rests()) {
        return TextKey("switch.resting");
    }
    switch (stage()) {
    case Stage::begin:
        return second_ ? TextKey("menu.mainMenu") : TextKey("switch.begin");
    case Stage::angle:
        return TextKey("switch.angle");
    case Stage::pitch:
        return TextKey("switch.pitch");
    case Stage::power:
        return TextKey("switch.power");
    case Stage::asked:
        return second_ ? TextKey("switch.again") : TextKey("switch.throw");
    case Stage::goOn:
        return TextKey("switch.goOn");
    case Stage::waiting:
        break;
    }
    return std::nullopt;
}

} // namespace vorbel
