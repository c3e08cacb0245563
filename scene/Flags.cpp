#include "scene/Flags.h"

#include "l10n/Country.h"
#include "scene/FlagColors.h"
#include "scene/FlagDesigns.h"

#include <algorithm>
#include <variant>
#include <vector>

namespace vorbel::arena {

namespace {

using namespace flags;

constexpr double flagWidth = 0.46;  // m
constexpr double flagHeight = 0.32; // m

struct Stripes {
    bool horizontal;
    std::vector<Color> colors;
};
struct Disc {
    Color field;
    Color disc;
};
struct Cross {};
struct Canton {
    Color field;
};
struct DividedDisc {};
struct Star {};
using Design = std::variant<Stripes, Disc, Cross, Canton, DividedDisc, Star>;

Stripes vertical(std::vector<Color> colors) {
    return {false, std::move(colors)};
}
Stripes horizontal(std::vector<Color> colors) {
    return {true, std::move(colors)};
}

Design designOf(Country country) {
    switch (country) {
    case Country::belgium:
        return vertical({black, gold, red});
    case Country::croatia:
    case Country::netherlands:
        return horizontal({red, white, blue});
    case Country::czechRepublic:
    case Country::poland:
        return horizontal({white, red});
    case Country::france:
        return vertical({blue, white, red});
    case Country::germany:
        return horizontal({black, red, gold});
    case Country::greatBritain:
        return Cross{};
    case Country::greece:
        return horizontal({blue, white, blue, white, blue});
    case Country::hungary:
        return horizontal({red, white, green});
    case Country::portugal:
        return vertical({darkGreen, deepRed});
    case Country::slovakia:
    case Country::russia:
        return horizontal({white, blue, red});
    case Country::spain:
        return horizontal({red, gold, red});
    case Country::ukraine:
        return horizontal({blue, gold});
    case Country::china:
        return Disc{deepRed, gold};
    case Country::hongKong:
    case Country::tunisia:
        return Disc{deepRed, white};
    case Country::indonesia:
    case Country::singapore:
        return horizontal({red, white});
    case Country::japan:
        return Disc{white, deepRed};
    case Country::southKorea:
        return DividedDisc{};
    case Country::malaysia:
        return horizontal({red, white, red, white});
    case Country::thailand:
        return horizontal({thaiRed, white, navy, white, thaiRed});
    case Country::israel:
        return Star{};
    case Country::argentina:
        return horizontal({skyBlue, white, skyBlue});
    case Country::bermuda:
        return Canton{deepRed};
    case Country::brazil:
        return Disc{green, gold};
    case Country::canada:
    case Country::peru:
        return vertical({red, white, red});
    case Country::colombia:
    case Country::ecuador:
        return horizontal({gold, blue, red});
    case Country::elSalvador:
        return horizontal({blue, white, blue});
    case Country::mexico:
        return vertical({green, white, red});
    case Country::egypt:
        return horizontal({red, white, black});
    case Country::southAfrica:
        return horizontal({deepRed, gold, green, blue});
    case Country::australia:
        return Canton{navy};
    }
    return Cross{};
}

struct FlagMaker {
    Node::Ptr operator()(const Stripes& stripes) const {
        return makeStripedFlag(stripes.colors, stripes.horizontal, flagWidth, flagHeight);
    }
    Node::Ptr operator()(const Disc& disc) const {
        return makeCircleFlag(disc.field, disc.disc, flagWidth, flagHeight);
    }
    Node::Ptr operator()(Cross /*design*/) const {
        return makeCrossFlag(navy, white, crossRed, flagWidth, flagHeight);
    }
    Node::Ptr operator()(const Canton& canton) const {
        return makeCantonFlag(canton.field, flagWidth, flagHeight);
    }
    Node::Ptr operator()(DividedDisc /*design*/) const { return makeKoreaFlag(flagWidth, flagHeight); }
    Node::Ptr operator()(Star /*design*/) const { return makeStarFlag(flagWidth, flagHeight); }
};

// Rows of nine from below; a row of one hangs centred.
Vec3 wallPosition(std::size_t index) {
    constexpr std::size_t flagsPerRow = 9;
    constexpr double wallWidth = 7.6;
    const std::size_t row = index / flagsPerRow;
    const std::size_t inThisRow = std::min(flagsPerRow, countryCount - flagsPerRow * row);
    const auto column = static_cast<double>(index % flagsPerRow);
    const double x =
        inThisRow < 2 ? 0 : column / static_cast<double>(inThisRow - 1) * wallWidth - wallWidth / 2;
    return {x, 1.2 + 0.42 * static_cast<double>(row), -9.9};
}

} // namespace

void addFlags(Scene& scene) {
    for (const Country country : allCountries) {
        const Node::Ptr flag = std::visit(FlagMaker{}, designOf(country));
        flag->setPosition(wallPosition(static_cast<std::size_t>(country)));
        scene.root->addChild(flag);
    }
}

} // namespace vorbel::arena
