#include "narration/Standing.h"

#include "l10n/L10n.h"
#include "narration/Balls.h"
#include "narration/Distance.h"
#include "narration/Sentences.h"

#include <glm/geometric.hpp>

#include <algorithm>
#include <vector>

namespace vorbel::narration {

namespace {

struct Measured {
    BallColor side;
    double distance; // m from the jack
};

// From the closest to the farthest; none without a jack.
std::vector<Measured> measured(const Position& position) {
    if (!position.jack) {
        return {};
    }
    std::vector<Measured> balls;
    for (const BallColor side : {BallColor::red, BallColor::blue}) {
        for (const Vec3& ball : position.of(side)) {
            balls.push_back({side, glm::distance(ball, *position.jack)});
        }
    }
    std::ranges::stable_sort(balls, {}, &Measured::distance);
    return balls;
}

// The best ball of the side that is not closest.
std::vector<Measured>::const_iterator bestOfOther(const std::vector<Measured>& balls) {
    return std::ranges::find_if(balls, [&](const Measured& ball) { return ball.side != balls.front().side; });
}

std::string say(TextKey key, double distance, AppLanguage language) {
    return L10n::fill(L10n::t(key, language), {fromJack(distance, language)});
}

std::string sayClosest(const Measured& ball, AppLanguage language) {
    return say(ball.side == BallColor::red ? TextKey("say.closest.red.format")
                                           : TextKey("say.closest.blue.format"),
               ball.distance, language);
}

std::string sayFarther(const Measured& ball, AppLanguage language) {
    return say(ball.side == BallColor::red ? TextKey("say.red.format") : TextKey("say.blue.format"),
               ball.distance, language);
}

// Takes out of `balls` those that its sentence names: one, or one of each side that are exactly equally far.
std::string takeClosest(std::vector<Measured>& balls, AppLanguage language) {
    const Measured first = balls.front();
    const auto other = bestOfOther(balls);
    if (other == balls.end() || other->distance != first.distance) {
        balls.erase(balls.begin());
        return sayClosest(first, language);
    }
    balls.erase(other);
    balls.erase(balls.begin());
    return say("say.closest.both.format", first.distance, language);
}

} // namespace

std::string closest(const Position& position, AppLanguage language) {
    auto balls = measured(position);
    if (balls.empty()) {
        return {};
    }
    const auto other = bestOfOther(balls);
    const std::string second =
        other == balls.end() || other->distance == balls.front().distance ? "" : sayFarther(*other, language);
    return joined({takeClosest(balls, language), second});
}

std::string order(const Position& position, AppLanguage language) {
    auto balls = measured(position);
    if (balls.empty()) {
        return {};
    }
    std::vector<std::string> sentences{takeClosest(balls, language)};
    for (const Measured& ball : balls) {
        sentences.push_back(sayFarther(ball, language));
    }
    return joined(sentences);
}

std::string ballsLeft(BallsLeft left, AppLanguage language) {
    return L10n::fill(L10n::t("say.ballsLeft.format", language),
                      {std::to_string(left.red), std::to_string(left.blue)});
}

std::string score(Points score, AppLanguage language) {
    return L10n::fill(L10n::t("say.score.format", language),
                      {std::to_string(score.red), std::to_string(score.blue)});
}

std::string everything(const Standing& standing, AppLanguage language) {
    return joined({jack(standing.position, standing.thrower, language), order(standing.position, language),
                   ballsLeft(standing.left, language), score(standing.score, language)});
}

} // namespace vorbel::narration
