#include "scene/ThrowingBoxes.h"

#include "rules/CourtGeometry.h"
#include "scene/CourtLines.h"
#include "scene/Floors.h"

namespace vorbel::arena {

namespace {

constexpr double middleZ = court::throwingAreaDepth / 2;

void addBox(Scene& scene, const Box& box, const Color& color, const Vec3& position) {
    auto node = std::make_shared<Node>(Geometry{box, {.diffuse = color}});
    node->setPosition(position);
    scene.root->addChild(std::move(node));
}

void addTint(Scene& scene, BallColor side, double courtWidth, const Color& color) {
    constexpr double thickness = 0.01; // m
    constexpr float alpha = 0.25F;
    const double boxWidth = courtWidth / court::throwingBoxes;
    addBox(scene, {boxWidth, thickness, court::throwingAreaDepth}, color.withAlpha(alpha),
           {(court::homeBox(side) + 0.5) * boxWidth - courtWidth / 2, thickness / 2, middleZ});
}

} // namespace

void addThrowingBoxes(Scene& scene, double courtWidth) {
    const double halfWidth = courtWidth / 2;
    addBox(scene, {courtWidth, courtThickness, court::throwingAreaDepth}, {0.22F, 0.20F, 0.18F},
           {0, -courtThickness / 2, middleZ});
    addTint(scene, BallColor::red, courtWidth, colors::systemRed);
    addTint(scene, BallColor::blue, courtWidth, colors::systemBlue);

    for (const double z : {0.0, court::throwingAreaDepth}) {
        addCourtLine(scene, {-halfWidth, 0, z}, {halfWidth, 0, z});
    }
    for (int i = 0; i <= court::throwingBoxes; ++i) {
        const double x = i * (courtWidth / court::throwingBoxes) - halfWidth;
        addCourtLine(scene, {x, 0, 0}, {x, 0, court::throwingAreaDepth});
    }
}

} // namespace vorbel::arena
