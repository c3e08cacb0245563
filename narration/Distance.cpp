#include "narration/Distance.h"

#include "l10n/Quantity.h"

#include <cmath>

namespace vorbel::narration {

namespace {

constexpr double centimetresPerMetre = 100;
constexpr double decimetresPerMetre = 10;

double roundedCentimetres(double metres) {
    return std::round(metres * centimetresPerMetre);
}

} // namespace

std::string fromJack(double metres, AppLanguage language) {
    const double centimetres = roundedCentimetres(metres);
    return centimetres < centimetresPerMetre
               ? L10n::quantity("unit.centimetres.format", centimetres, 0, language)
               : fromThrower(metres, language);
}

std::string fromThrower(double metres, AppLanguage language) {
    return L10n::quantity("unit.metres.format", metres, 1, language);
}

bool isNothingFromJack(double metres) {
    return roundedCentimetres(metres) == 0;
}

bool isNothingFromThrower(double metres) {
    return std::round(metres * decimetresPerMetre) == 0;
}

} // namespace vorbel::narration
