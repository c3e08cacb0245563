// The points of an end, the result of the match, and extra ends.
#include "engine/Distance.h"
#include "engine/GameLogic.h"
#include "engine/Messages.h"

#include <algorithm>
#include <cmath>

namespace vorbel {

namespace {

constexpr int endsPerMatch = 4;
constexpr double equidistance = 0.0005; // m: balls within this of the closest pair count as equally close

int closerThan(const std::vector<double>& distances, double limit) {
    return static_cast<int>(std::ranges::count_if(distances, [limit](double d) { return d < limit; }));
}

int equallyFar(const std::vector<double>& distances, double distance) {
    return static_cast<int>(std::ranges::count_if(
        distances, [distance](double d) { return std::abs(d - distance) < equidistance; }));
}

} // namespace

EndResult GameLogic::countPoints(const Vec3& jack) const {
    const std::vector<double> red = distancesToJack(BallColor::red, jack);
    const std::vector<double> blue = distancesToJack(BallColor::blue, jack);
    const double closestRed = closest(red);
    const double closestBlue = closest(blue);
    EndResult result{.end = currentEnd};
    if (closestRed < closestBlue) {
        result.red = closerThan(red, closestBlue);
    } else if (closestBlue < closestRed) {
        result.blue = closerThan(blue, closestRed);
    } else if (std::isfinite(closestRed)) {
        result.red = equallyFar(red, closestRed);
        result.blue = equallyFar(blue, closestBlue);
    }
    return result;
}

void GameLogic::calculateScore() {
    const Node::Ptr jack = jackNode();
    if (!jack) {
        return;
    }
    const EndResult result = countPoints(jack->position());
    redScore += result.red;
    blueScore += result.blue;
    auto history = endHistory.get();
    history.push_back(result);
    endHistory = std::move(history);
    if (result.red + result.blue > 0) {
        restart(scoreSound_.get());
    }
    continueAfter(result);
}

void GameLogic::continueAfter(const EndResult& result) {
    if (currentEnd < endsPerMatch) {
        message = messages::nextEndPrompt(language, result);
    } else if (redScore != blueScore) {
        phase = GamePhase::gameOver;
        message = messages::matchOver(language, redScore, blueScore);
    } else {
        startTieBreakEnd();
    }
}

void GameLogic::startTieBreakEnd() {
    currentEnd += 1;
    clearField();
    redBallsLeft = ballsPerSide;
    blueBallsLeft = ballsPerSide;
    phase = GamePhase::playing; // without a jack throw
    currentTurn = startingSide(currentEnd);
    aimState = AimState::idle;
    scene.root->addChild(makeRestingJack(crossPosition));
    spawnBall();
    message = messages::tieBreak(language, currentEnd, currentTurn);
    triggerAIIfNeeded();
}

void GameLogic::resetMatch() {
    redScore = 0;
    blueScore = 0;
    endHistory = {};
    currentEnd = 1;
    clearField();
    startNewEnd();
}

std::string GameLogic::matchWinnerTitle() const {
    return messages::teamWinMatch(language, redScore > blueScore ? BallColor::red : BallColor::blue);
}

} // namespace vorbel
