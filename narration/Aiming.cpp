#include "narration/Aiming.h"

#include "l10n/L10n.h"
#include "l10n/Quantity.h"

#include <cmath>
#include <numbers>

namespace vorbel::narration {

namespace {

double degrees(double angle) {
    return angle * 180 / std::numbers::pi;
}

std::string inDegrees(double angle, int decimals, AppLanguage language) {
    return L10n::quantity("unit.degrees.format", degrees(angle), decimals, language);
}

} // namespace

std::string angle(double angle, int decimals, AppLanguage language) {
    if (std::round(degrees(angle) * std::pow(10, decimals)) == 0) {
        return std::string(L10n::t("say.angle.ahead", language));
    }
    const TextKey side = angle < 0 ? TextKey("say.angle.left.format") : TextKey("say.angle.right.format");
    return L10n::fill(L10n::t(side, language), {inDegrees(std::abs(angle), decimals, language)});
}

std::string elevation(double pitch, int decimals, AppLanguage language) {
    return L10n::fill(L10n::t("say.pitch.format", language), {inDegrees(pitch, decimals, language)});
}

std::string power(double percent, AppLanguage language) {
    return L10n::fill(L10n::t("say.power.format", language), {L10n::number(percent, 0, language)});
}

} // namespace vorbel::narration
