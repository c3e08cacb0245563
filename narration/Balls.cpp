#include "narration/Balls.h"

#include "l10n/L10n.h"
#include "narration/Distance.h"
#include "narration/Sentences.h"
#include "rules/CourtGeometry.h"
#include "rules/JackValidity.h"

#include <glm/geometric.hpp>

#include <cmath>

namespace vorbel::narration {

namespace {

std::string along(double shortBy, AppLanguage language) {
    if (isNothingFromJack(shortBy)) {
        return std::string(L10n::t("say.rest.level", language));
    }
    const TextKey key = shortBy > 0 ? TextKey("say.rest.short.format") : TextKey("say.rest.beyond.format");
    return L10n::fill(L10n::t(key, language), {fromJack(std::abs(shortBy), language)});
}

std::string across(double toTheRight, AppLanguage language) {
    if (isNothingFromJack(toTheRight)) {
        return {};
    }
    const TextKey key = toTheRight < 0 ? TextKey("say.rest.left.format") : TextKey("say.rest.right.format");
    return L10n::fill(L10n::t(key, language), {fromJack(std::abs(toTheRight), language)});
}

} // namespace

std::string jack(const Position& position, BallColor thrower, AppLanguage language) {
    if (!position.jack) {
        return std::string(L10n::t("say.jack.none", language));
    }
    const Vec3 origin = court::throwOrigin(thrower);
    const std::string away = fromThrower(glm::distance(origin, *position.jack), language);
    const double toTheRight = position.jack->x - origin.x;
    if (isNothingFromThrower(toTheRight)) {
        return L10n::fill(L10n::t("say.jack.ahead.format", language), {away});
    }
    const TextKey key = toTheRight < 0 ? TextKey("say.jack.left.format") : TextKey("say.jack.right.format");
    return L10n::fill(L10n::t(key, language), {away, fromThrower(std::abs(toTheRight), language)});
}

std::string atRest(const Vec3& ball, const Vec3& jack, AppLanguage language) {
    if (isOutOfBounds(ball)) {
        return std::string(L10n::t("say.rest.out", language));
    }
    return joined({along(ball.z - jack.z, language), across(ball.x - jack.x, language)});
}

} // namespace vorbel::narration
