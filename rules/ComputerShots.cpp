#include "rules/ComputerShots.h"

#include "rules/CourtGeometry.h"

#include <glm/geometric.hpp>

#include <algorithm>
#include <cmath>
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

AICandidate draw(const Position& position, const Vec3& jack, double theirBest) {
    const Vec3 spot = freeSpotNearJack(position, jack);
    const double fromJack = glm::distance(spot, jack);
    return {spot, (fromJack < theirBest ? 10.0 : 2.0) - 2.0 * fromJack, 1.0};
}

AICandidate hit(std::span<const Vec3> opponents, const ClosestBall& theirs, double myBest, const Vec3& jack,
                BallColor side) {
    const auto closerThanMine = std::ranges::count_if(
        opponents, [&](const Vec3& ball) { return glm::distance(ball, jack) < myBest; });
    const double score = 14.0 + 3.0 * static_cast<double>(closerThanMine) - 1.5 * theirs.distance;
    return {extendTarget(court::restingAt(theirs.position), beyondOpponent, side), score, hitPower};
}

AICandidate raise(const Vec3& ownBall, BallColor side) {
    return {extendTarget(court::restingAt(ownBall), beyondOwnBall, side), raiseScore, raisePower};
}

AICandidate block(const Vec3& jack, BallColor side) {
    const Vec3 spot = court::throwOrigin(side);
    return {court::restingAt(spot + blockShare * (jack - spot)), blockScore, 1.0};
}

} // namespace

Target chooseShot(const Position& position, BallColor side, AIDifficulty level) {
    if (level == AIDifficulty::easy) {
        return {court::restingAt(position.jack.value())};
    }
    const std::vector<AICandidate> candidates = candidateShots(position, side);
    const AICandidate& best = bestOf(candidates);
    return {best.target, best.powerMultiplier};
}

std::vector<AICandidate> candidateShots(const Position& position, BallColor side) {
    const Vec3& jack = position.jack.value();
    const std::vector<Vec3>& own = position.of(side);
    const std::vector<Vec3>& opponents = position.of(opponent(side));
    const double myBest = closestBall(own, jack).distance;
    const ClosestBall theirs = closestBall(opponents, jack);

    std::vector<AICandidate> candidates{draw(position, jack, theirs.distance)};
    if (theirs.distance < myBest) {
        candidates.push_back(hit(opponents, theirs, myBest, jack, side));
    }
    const auto lyingShort =
        std::ranges::find_if(own, [&](const Vec3& ball) { return ball.z > jack.z + shortOfJack; });
    if (lyingShort != own.end()) {
        candidates.push_back(raise(*lyingShort, side));
    }
    candidates.push_back(block(jack, side));
    return candidates;
}

const AICandidate& bestOf(std::span<const AICandidate> candidates) {
    return *std::ranges::max_element(candidates, {}, &AICandidate::score);
}

Vec3 freeSpotNearJack(const Position& position, const Vec3& jack) {
    Vec3 best{jack.x, court::restingHeight, jack.z - freeSpotRadius};
    double bestClearance = -1;
    for (int i = 0; i < freeSpotCount; ++i) {
        // From the far side of the jack, turning towards +x.
        const double angle = 2 * std::numbers::pi * i / freeSpotCount;
        const Vec3 spot{jack.x + freeSpotRadius * std::sin(angle), court::restingHeight,
                        jack.z - freeSpotRadius * std::cos(angle)};
        const double clearance =
            std::min(closestBall(position.red, spot).distance, closestBall(position.blue, spot).distance);
        if (clearance > bestClearance) {
            best = spot;
            bestClearance = clearance;
        }
    }
    return best;
}

Vec3 extendTarget(const Vec3& target, double beyondBy, BallColor side) {
    const Vec3 spot = court::throwOrigin(side);
    const double dx = target.x - spot.x;
    const double dz = target.z - spot.z;
    const double length = std::sqrt(dx * dx + dz * dz);
    if (length <= onTheSpot) {
        return target;
    }
    const double stretch = (beyondBy + length) / length;
    return {spot.x + dx * stretch, court::restingHeight, spot.z + dz * stretch};
}

} // namespace vorbel
