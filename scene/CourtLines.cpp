#include "scene/CourtLines.h"

#include "rules/CourtGeometry.h"

#include <cmath>

namespace vorbel::arena {

void addCourtLine(Scene& scene, const Vec3& from, const Vec3& to) {
    constexpr double width = 0.05;         // m
    constexpr double thickness = 0.01;     // m
    constexpr double shortestLine = 0.001; // m
    const double dx = to.x - from.x;
    const double dz = to.z - from.z;
    const double length = std::sqrt(dx * dx + dz * dz);
    if (length <= shortestLine) {
        return;
    }
    auto line = std::make_shared<Node>(Geometry{Box{length, thickness, width}, {.diffuse = colors::white}});
    line->setPosition({(from.x + to.x) / 2, from.y, (from.z + to.z) / 2});
    line->setEulerAngles({0, std::atan2(-dz, dx), 0});
    scene.root->addChild(std::move(line));
}

void addVLine(Scene& scene) {
    constexpr Vec3 apex{0, 0, court::vLineApexZ};
    for (const double side : {-court::sideLine, court::sideLine}) {
        addCourtLine(scene, apex, {side, 0, court::vLineSideZ});
    }
}

void addSideLines(Scene& scene) {
    for (const double side : {-court::sideLine, court::sideLine}) {
        addCourtLine(scene, {side, 0, 0}, {side, 0, -court::length});
    }
}

} // namespace vorbel::arena
