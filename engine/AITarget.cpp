// Where the computer wants its ball to stop: scored candidate shots, from a draw beside the jack to a block.
#include "engine/GameLogic.h"
#include "scene/Ball.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>

namespace vorbel {

namespace {

constexpr double freeSpotRadius = 0.12; // m, of the ring of spots around the jack
constexpr int freeSpotCount = 12;
constexpr double beyondOpponent = 0.35; // m past an opponent ball that is to be hit away
constexpr double beyondOwnBall = 0.25;  // m past an own ball that is to be pushed on
constexpr double shortOfJack = 0.1;     // m: how far an own ball must lie short of the jack to be pushed on
constexpr double blockShare = 0.85;     // of the way to the jack
constexpr double hitPower = 1.6;        // of the power that would just reach the target
constexpr double raisePower = 1.3;
constexpr double raiseScore = 8.0;
constexpr double blockScore = 6.0;

Vec3 onCourt(const Vec3& point) {
    return {point.x, restingHeight, point.z};
}

struct ClosestBall {
    Vec3 position{0};
    double distance = std::numeric_limits<double>::infinity(); // m from the jack
};

ClosestBall closestBall(const std::vector<Vec3>& balls, const Vec3& jack) {
    ClosestBall closest;
    for (const Vec3& ball : balls) {
        const double distance = glm::distance(ball, jack);
        if (distance < closest.distance) {
            closest = {ball, distance};
        }
    }
    return closest;
}

} // namespace

GameLogic::AITarget GameLogic::computeAITarget() {
    const Node::Ptr jack = phase == GamePhase::playing ? jackNode() : nullptr;
    if (!jack) {
        const double x = platform_.random.uniform(-1, 1);
        const double z = platform_.random.uniform(-7, -4);
        return {{x, restingHeight, z}, 1.0};
    }
    if (aiDifficulty == AIDifficulty::easy) {
        return {onCourt(jack->position()), 1.0};
    }
    const std::vector<AICandidate> candidates = generateAdvancedCandidates(jack->position());
    const auto best = std::ranges::max_element(candidates, {}, &AICandidate::score); // the earlier of equals
    return {best->target, best->powerMultiplier};
}

std::vector<AICandidate> GameLogic::generateAdvancedCandidates(const Vec3& jackPosition) const {
    const std::vector<Vec3> own = ballPositions(currentTurn); // the waiting ball is one of them
    const std::vector<Vec3> opponents = ballPositions(opponent(currentTurn));
    const double myBest = closestBall(own, jackPosition).distance;
    const ClosestBall theirs = closestBall(opponents, jackPosition);
    std::vector<AICandidate> candidates;

    const Vec3 freeSpot = freeSpotNearJack(jackPosition);
    const double fromJack = glm::distance(freeSpot, jackPosition);
    candidates.push_back({freeSpot, (fromJack < theirs.distance ? 10.0 : 2.0) - 2.0 * fromJack, 1.0});

    if (theirs.distance < myBest) {
        const auto closerThanMine = std::ranges::count_if(
            opponents, [&](const Vec3& ball) { return glm::distance(ball, jackPosition) < myBest; });
        const double score = 14.0 + 3.0 * static_cast<double>(closerThanMine) - 1.5 * theirs.distance;
        candidates.push_back({extendTarget(onCourt(theirs.position), beyondOpponent), score, hitPower});
    }

    const auto lyingShort =
        std::ranges::find_if(own, [&](const Vec3& ball) { return ball.z > jackPosition.z + shortOfJack; });
    if (lyingShort != own.end()) {
        candidates.push_back({extendTarget(onCourt(*lyingShort), beyondOwnBall), raiseScore, raisePower});
    }

    const Vec3 spot = throwOrigin(currentTurn);
    candidates.push_back({onCourt(spot + blockShare * (jackPosition - spot)), blockScore, 1.0});
    return candidates;
}

Vec3 GameLogic::freeSpotNearJack(const Vec3& jack) const {
    std::vector<Vec3> balls = ballPositions(BallColor::red);
    const std::vector<Vec3> blueBalls = ballPositions(BallColor::blue);
    balls.insert(balls.end(), blueBalls.begin(), blueBalls.end());

    Vec3 best{jack.x, restingHeight, jack.z - freeSpotRadius};
    double bestClearance = -1;
    for (int i = 0; i < freeSpotCount; ++i) {
        // From the far side of the jack, turning towards +x.
        const double angle = 2 * std::numbers::pi * i / freeSpotCount;
        const Vec3 spot{jack.x + freeSpotRadius * std::sin(angle), restingHeight,
                        jack.z - freeSpotRadius * std::cos(angle)};
        const double clearance = closestBall(balls, spot).distance;
        if (clearance > bestClearance) {
            best = spot;
            bestClearance = clearance;
        }
    }
    return best;
}

Vec3 GameLogic::extendTarget(const Vec3& target, double beyondBy) const {
    constexpr double onTheSpot = 0.001; // m
    const Vec3 spot = throwOrigin(currentTurn);
    const double dx = target.x - spot.x;
    const double dz = target.z - spot.z;
    const double length = std::sqrt(dx * dx + dz * dz);
    if (length <= onTheSpot) {
        return target;
    }
    const double stretch = (beyondBy + length) / length;
    return {spot.x + dx * stretch, restingHeight, spot.z + dz * stretch};
}

} // namespace vorbel
