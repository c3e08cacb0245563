#include "scene/Arena.h"

#include "rules/CourtGeometry.h"
#include "scene/CourtLines.h"
#include "scene/Flags.h"
#include "scene/Floors.h"
#include "scene/Lights.h"
#include "scene/Pointer.h"
#include "scene/Referee.h"
#include "scene/Stands.h"
#include "scene/ThrowingBoxes.h"

#include <numbers>

namespace vorbel::arena {

namespace {

// Behind the throwers, looking down the court.
void addCamera(Scene& scene) {
    constexpr double tilt = -std::numbers::pi / 16; // down towards the court
    auto camera = std::make_shared<Node>();
    camera->camera = Camera{};
    camera->setPosition({0, 1.2, 1.0});
    camera->setEulerAngles({tilt, 0, 0});
    scene.root->addChild(std::move(camera));
}

} // namespace

Scene makeArena(RandomSource& random) {
    Scene scene;
    scene.background = {0.05F, 0.05F, 0.08F};
    addFloors(scene);
    addVLine(scene);
    addPointer(scene);
    addLights(scene);
    addCamera(scene);
    addStands(scene, court::width, court::length, random);
    addFlags(scene);
    addSideLines(scene);
    addThrowingBoxes(scene, court::width);
    scene.root->addChild(makeReferee(court::width, court::length));
    return scene;
}

} // namespace vorbel::arena
