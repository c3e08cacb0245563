#include "scene/Stands.h"

#include <array>
#include <numbers>

namespace vorbel::arena {

namespace {

constexpr std::array spectatorSprites{
    SpectatorSprite{"SpectatorBrazil1", 447.0 / 796},
    SpectatorSprite{"SpectatorItalyBaby", 487.0 / 870},
    SpectatorSprite{"SpectatorPortugal", 544.0 / 905},
    SpectatorSprite{"SpectatorThaiMan", 527.0 / 900},
    SpectatorSprite{"SpectatorBritishOldMan", 565.0 / 907},
    SpectatorSprite{"SpectatorBrazilGirl", 149.0 / 284},
    SpectatorSprite{"SpectatorGermanyWoman", 155.0 / 287},
};

constexpr int rowsPerSide = 5;
constexpr int spectatorsPerRow = 36;
constexpr double rowDepth = 0.5;    // m, across the court
constexpr double rowHeight = 0.35;  // m, each row above the one before it
constexpr double firstRowGap = 1.3; // m, from the side line to the middle of the first row
constexpr double overhang = 0.5;    // m, of the steps past both ends of the court
constexpr double chamferRadius = 0.02;

// One bank: +1 is the right one as seen from the camera, −1 the left one.
struct Bank {
    double side;
    double courtWidth;
    double courtLength;

    [[nodiscard]] double rowX(int row) const {
        return side * (courtWidth / 2 + firstRowGap + rowDepth * row);
    }
    [[nodiscard]] double facingCourt() const { return -side * std::numbers::pi / 2; } // about y
};

double rowCentreY(int row) {
    return rowHeight / 2 + rowHeight * row;
}

void addStep(Scene& scene, const Bank& bank, int row) {
    const auto shade = static_cast<float>(row); // higher rows are lighter
    const Color color{0.12F + 0.02F * shade, 0.12F + 0.015F * shade, 0.16F + 0.02F * shade};
    const Box shape{rowDepth, rowHeight, bank.courtLength + 2 * overhang, chamferRadius};
    auto step = std::make_shared<Node>(Geometry{shape, {.diffuse = color}});
    step->setPosition({bank.rowX(row), rowCentreY(row), -bank.courtLength / 2});
    scene.root->addChild(std::move(step));
}

void addSpectator(Scene& scene, const Bank& bank, int row, int place, RandomSource& random) {
    constexpr double shortest = 0.32;
    constexpr double tallest = 0.44;
    const SpectatorSprite& sprite = spectatorSprites[random.index(spectatorSprites.size())];
    const double height = random.uniform(shortest, tallest);
    const double dx = random.uniform(-0.05, 0.05);
    const double dz = random.uniform(-0.12, 0.12);

    const Node::Ptr spectator = makeSpectatorBillboard(sprite, height);
    const double z = -bank.courtLength + bank.courtLength * (place + 0.5) / spectatorsPerRow + dz;
    spectator->setPosition({bank.rowX(row) + dx, rowCentreY(row) + rowHeight / 2 + height / 2, z});
    spectator->setEulerAngles({0, bank.facingCourt(), 0});
    scene.root->addChild(spectator);
}

} // namespace

void addStands(Scene& scene, double courtWidth, double courtLength, RandomSource& random) {
    for (const double side : {1.0, -1.0}) {
        const Bank bank{side, courtWidth, courtLength};
        for (int row = 0; row < rowsPerSide; ++row) {
            addStep(scene, bank, row);
            for (int place = 0; place < spectatorsPerRow; ++place) {
                addSpectator(scene, bank, row, place, random);
            }
        }
    }
}

Node::Ptr makeSpectatorBillboard(const SpectatorSprite& sprite, double height) {
    const Material material{.picture = std::string(sprite.picture), .doubleSided = true, .unlit = true};
    return std::make_shared<Node>(Geometry{Plane{sprite.aspectRatio * height, height}, material});
}

} // namespace vorbel::arena
