// The computer's turn: a pause, an aim spoilt by its level's error, a second to show it, the release.
#include "engine/GameLogic.h"
#include "engine/Messages.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace vorbel {

namespace {

constexpr double pauseBeforeAiming = 0.8; // s
constexpr double aimShown = 1.0;          // s
constexpr double angleLimit = std::numbers::pi / 4;
constexpr double leastDistance = 0.1; // m
constexpr double lengthBias = 0.15;   // of the length error: throws go long rather than short

// Largest aiming errors of a level, in metres at the target.
struct AimingError {
    double lateral;
    double length;
};
constexpr std::array<AimingError, allDifficulties.size()> aimingErrors{{
    {0.8, 1.2},
    {0.1, 0.15},
    {0.03, 0.05},
    {0.0, 0.0}, // only the physics and the power model decide where the ball stops
}};

// A ball slows down at the rate 0.4/s, so this speed rolls it `distance` metres before it falls to 0.25 m/s,
// where it counts as resting. In percent of the full speed of 5 m/s.
double powerForDistance(double distance) {
    return (0.4 * distance + 0.25) / 5.0 * 100.0;
}

// In the court plane, x to the right and z towards the camera.
struct Direction {
    double x;
    double z;
};

Direction directionTo(double dx, double dz) {
    constexpr double onTheSpot = 0.001; // m
    const double length = std::sqrt(dx * dx + dz * dz);
    return length <= onTheSpot ? Direction{0, -1} : Direction{dx / length, dz / length};
}

} // namespace

bool GameLogic::computerMayThrow() const {
    return aimState == AimState::idle && (phase == GamePhase::throwingJack || phase == GamePhase::playing) &&
           isCurrentTurnAI();
}

void GameLogic::triggerAIIfNeeded() {
    if (computerMayThrow()) {
        platform_.mainQueue.postAfter(pauseBeforeAiming, lifetime_.whileAlive([this] { performAITurn(); }));
    }
}

// A side that is given to the computer while its player is aiming: the computer starts the throw anew.
// Otherwise the half-made aim would wait for a key that is the computer's turn to ignore.
void GameLogic::dropHumanAim() {
    if (isCurrentTurnAI() && (aimState == AimState::aimingAngle || aimState == AimState::aimingPower)) {
        aimState = AimState::idle;
        setPointerVisible(false);
    }
}

void GameLogic::performAITurn() {
    if (!computerMayThrow()) {
        return;
    }
    aimAt(computeAITarget());
    aimState = AimState::aimingAngle;
    message = messages::aiAiming(language, currentTurn);
    setPointerVisible(true);
    platform_.mainQueue.postAfter(aimShown, lifetime_.whileAlive([this] {
        if (aimState == AimState::aimingAngle) {
            releaseBall();
        }
    }));
}

void GameLogic::aimAt(const AITarget& target) {
    const Vec3 spot = throwOrigin(currentTurn);
    const AimingError& error = aimingErrors[static_cast<std::size_t>(aiDifficulty.get())];
    const Direction u = directionTo(target.point.x - spot.x, target.point.z - spot.z);
    const double sideways = platform_.random.uniform(-error.lateral, error.lateral);
    const double lengthwise =
        platform_.random.uniform(-error.length, error.length) + lengthBias * error.length;
    const double ax = target.point.x + sideways * -u.z + lengthwise * u.x - spot.x;
    const double az = target.point.z + sideways * u.x + lengthwise * u.z - spot.z;

    const double wanted = std::atan2(ax, -az);
    const double angle = std::clamp(wanted, -angleLimit, angleLimit);
    const double distance = angle == wanted
                                ? std::sqrt(ax * ax + az * az)
                                : std::max(std::sin(angle) * ax - std::cos(angle) * az, leastDistance);
    aimAngle = angle;
    aimPitch = 0; // the computer always rolls the ball
    aimPower = std::clamp(target.powerMultiplier * powerForDistance(distance), 10.0, 100.0);
}

} // namespace vorbel
