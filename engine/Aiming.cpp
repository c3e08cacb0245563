// The human thrower's side of a throw: the aiming tick, the aiming keys and the one action key.
#include "engine/GameLogic.h"
#include "engine/Messages.h"

#include <algorithm>
#include <array>
#include <numbers>

namespace vorbel {

namespace {

constexpr double angleStep = 0.05;                  // rad per key press
constexpr double angleLimit = std::numbers::pi / 4; // rad, to both sides
constexpr double pitchStep = 0.05;                  // rad per key press
constexpr double pitchLimit = std::numbers::pi / 3; // rad
constexpr double lowestPower = 10;                  // percent; the swing turns round beyond it
constexpr double highestPower = 100;                // percent
constexpr double releaseJitter = 0.06;              // rad, largest error of a BC1 thrower's release
constexpr double pointerOpacity = 0.8;

// Percent per tick: how fast the power swings for each sport class.
constexpr std::array<double, bocciaClassCount> powerSteps{0.85, 0.6, 0.3, 0.6};

double powerStep(BocciaClass sportClass) {
    return powerSteps[static_cast<std::size_t>(sportClass)];
}

double clampAngle(double angle) {
    return std::clamp(angle, -angleLimit, angleLimit);
}

} // namespace

void GameLogic::startAimingLoop() {
    timer_ = platform_.mainQueue.repeat(
        tickPeriod, [this] { platform_.mainQueue.post(lifetime_.whileAlive([this] { tick(); })); });
}

void GameLogic::stopAimingLoop() {
    timer_.cancel();
}

// Physics time is tick time: a throw depends on its aim alone, never on the frame rate.
void GameLogic::tick() {
    scene.advanceAnimations(tickPeriod);
    physicsWorld_.step(tickPeriod);
    updateAiming();
    tickObservers_.tell();
}

void GameLogic::updateAiming() {
    if (aimState == AimState::thrown) {
        checkPhysics();
    } else if (aimState == AimState::aimingPower) {
        // Not clamped: the power may overshoot by one step, and a throw locked just then uses that value.
        aimPower += powerStep(playerClass) * powerDirection_;
        if (aimPower > highestPower || aimPower < lowestPower) {
            powerDirection_ = -powerDirection_;
        }
    }
}

void GameLogic::moveAimLeft() {
    turnAim(-angleStep);
}
void GameLogic::moveAimRight() {
    turnAim(angleStep);
}
void GameLogic::moveAimUp() {
    raiseAim(pitchStep);
}
void GameLogic::moveAimDown() {
    raiseAim(-pitchStep);
}

bool GameLogic::humanSetsAngle() const {
    return !isCurrentTurnAI() && aimState == AimState::aimingAngle;
}

void GameLogic::turnAim(double angle) {
    if (humanSetsAngle()) {
        aimAngle = clampAngle(aimAngle + angle);
    }
}

void GameLogic::raiseAim(double angle) {
    if (humanSetsAngle() && playerClass != BocciaClass::bc3) {
        aimPitch = std::clamp(aimPitch + angle, 0.0, pitchLimit);
    }
}

void GameLogic::processInput() {
    if (phase == GamePhase::gameOver) {
        tournamentActive ? advanceTournament() : resetMatch();
    } else if (phase == GamePhase::endOver) {
        currentEnd += 1;
        clearField();
        startNewEnd();
    } else if (!isCurrentTurnAI()) {
        advanceHumanThrow();
    }
}

void GameLogic::advanceHumanThrow() {
    switch (aimState) {
    case AimState::idle:
        aimState = AimState::aimingAngle;
        message = messages::aimingHint(language);
        setPointerVisible(true);
        break;
    case AimState::aimingAngle:
        aimState = AimState::aimingPower;
        message = messages::lockPower(language);
        break;
    case AimState::aimingPower:
        if (playerClass == BocciaClass::bc1) {
            aimAngle = clampAngle(aimAngle + platform_.random.uniform(-releaseJitter, releaseJitter));
        }
        releaseBall();
        break;
    case AimState::thrown:
        break;
    }
}

void GameLogic::releaseBall() {
    aimState = AimState::thrown;
    ticksSinceThrown_ = 0;
    message = messages::ballInPlay(language);
    setPointerVisible(false);
    throwActiveBall();
}

void GameLogic::setPointerVisible(bool visible) {
    if (const Node::Ptr pointer = scene.root->findChild("pointer")) {
        pointer->opacity = visible ? pointerOpacity : 0;
    }
}

} // namespace vorbel
