// The computer's turn: a pause, an aim spoilt by its level's error, a second to show it, the release.
#include "engine/GameLogic.h"
#include "engine/Messages.h"

namespace vorbel {

bool GameLogic::computerMayThrow() const {
    return aimState == AimState::idle && (phase == GamePhase::throwingJack || phase == GamePhase::playing) &&
           isCurrentTurnAI();
}

void GameLogic::triggerAIIfNeeded() {
    if (computerMayThrow() && clock_.scheduled() == Clockwork::Step::none) {
        scheduleAITurn();
    }
}

void GameLogic::scheduleAITurn() {
    constexpr double pause = 0.8; // s
    clock_.schedule(Clockwork::Step::aim, pause, [this] {
        tell(MatchAction::Kind::step);
        performAITurn();
    });
}

// A side that is given to the computer while its player is aiming: the computer starts the throw anew.
// Otherwise the half-made aim would wait for a key that is the computer's turn to ignore. An aim of the
// computer's own stands.
void GameLogic::dropHumanAim() {
    const bool aiming = aimState == AimState::aimingAngle || aimState == AimState::aimingPower;
    if (aiming && isCurrentTurnAI() && clock_.scheduled() != Clockwork::Step::release) {
        dropAim();
        message = messages::aiAiming(language, currentTurn);
    }
}

void GameLogic::dropAim() {
    if (clock_.scheduled() == Clockwork::Step::release) {
        clock_.cancel();
    }
    state_.aimState = AimState::idle;
    balls_.showPointer(false);
}

void GameLogic::performAITurn() {
    constexpr double aimShown = 1.0; // s
    if (!computerMayThrow()) {
        return;
    }
    const AITarget target = computeAITarget();
    const Aim aim = aimAt(target, currentTurn, drawError());
    state_.aimAngle = aim.angle;
    state_.aimPitch = aim.pitch;
    state_.aimPower = aim.power;
    state_.aimState = AimState::aimingAngle;
    message = messages::aiAiming(language, currentTurn);
    balls_.showPointer(true);
    clock_.schedule(Clockwork::Step::release, aimShown, [this] {
        tell(MatchAction::Kind::step);
        if (aimState == AimState::aimingAngle) {
            beginThrow();
            releaseBall();
        }
    });
}

AimingError GameLogic::drawError() {
    const AimingError largest = largestError(aiDifficulty);
    const double sideways = platform_.random.uniform(-largest.sideways, largest.sideways);
    const double lengthwise = platform_.random.uniform(-largest.lengthwise, largest.lengthwise);
    return {sideways, lengthwise + lengthBias(aiDifficulty)};
}

Target GameLogic::computeAITarget() {
    const Position position = balls_.position();
    if (phase == GamePhase::playing && position.jack) {
        return chooseShot(position, currentTurn, aiDifficulty);
    }
    const double x = platform_.random.uniform(jackArea::left, jackArea::right);
    const double z = platform_.random.uniform(jackArea::far, jackArea::near);
    return {court::restingAt({x, 0, z})};
}

std::vector<AICandidate> GameLogic::generateAdvancedCandidates(const Vec3& jackPosition) const {
    Position position = balls_.position();
    position.jack = jackPosition;
    return candidateShots(position, currentTurn);
}

Vec3 GameLogic::freeSpotNearJack(const Vec3& jack) const {
    return vorbel::freeSpotNearJack(balls_.position(), jack);
}

Vec3 GameLogic::extendTarget(const Vec3& target, double beyondBy) const {
    return vorbel::extendTarget(target, beyondBy, currentTurn);
}

} // namespace vorbel
