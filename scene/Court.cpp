// The court with its lines and throwing boxes, what the balls roll on, the lights and the camera.
#include "engine/GameLogic.h"
#include "scene/Ball.h"

#include <cmath>
#include <numbers>

namespace vorbel {

namespace {

constexpr double courtWidth = 6;         // m
constexpr double courtLength = 12.5;     // m, from the throwing line to the far end
constexpr double courtThickness = 0.1;   // m, of the court and of the throwing area: their tops are y = 0
constexpr double throwingAreaDepth = 2;  // m, behind the throwing line
constexpr double physicsFloorY = -0.015; // m: balls sink slightly into the visible court
constexpr double lineWidth = 0.05;       // m
constexpr double lineThickness = 0.01;   // m
constexpr double shortestLine = 0.001;   // m; anything shorter is no line
constexpr float tintAlpha = 0.25F;
const Vec3 courtCentre{0, 0, -courtLength / 2};

Node::Ptr addNode(Scene& scene, Node node, const Vec3& position) {
    auto added = std::make_shared<Node>(std::move(node));
    added->setPosition(position);
    scene.root->addChild(added);
    return added;
}

Node box(double width, double height, double length, const Color& color) {
    return Node(Geometry{Box{width, height, length}, {.diffuse = color}});
}

void addFloors(Scene& scene) {
    constexpr double arenaFloorY = -0.05;
    constexpr double mirror = 0.05;
    addNode(scene, Node(Geometry{Floor{mirror}, {.diffuse = {0.10F, 0.10F, 0.12F}}}), {0, arenaFloorY, 0});
    addNode(scene, box(courtWidth, courtThickness, courtLength, {0.13F, 0.52F, 0.31F}),
            courtCentre - Vec3(0, courtThickness / 2, 0));

    const auto physicsFloor = addNode(scene, Node(Geometry{Floor{}, {}}), {0, physicsFloorY, 0});
    physicsFloor->opacity = 0;
    physicsFloor->body = std::make_shared<PhysicsBody>(PhysicsBody{.friction = 0.6, .restitution = 0});

    const auto backWall = addNode(scene, box(courtWidth, 1, 0.1, colors::white), {0, 0.5, -courtLength});
    backWall->opacity = 0;
    backWall->body = std::make_shared<PhysicsBody>(PhysicsBody{.restitution = 0});
}

void addVLine(Scene& scene) {
    constexpr Vec3 apex{0, 0, -1.5};
    GameLogic::addCourtLine(scene, apex, {-courtWidth / 2, 0, -3.5});
    GameLogic::addCourtLine(scene, apex, {courtWidth / 2, 0, -3.5});
}

void addPointer(Scene& scene) {
    constexpr double thickness = 0.02;
    constexpr double length = 2;
    constexpr double height = 0.02; // above the court
    const auto pointer = addNode(scene, Node("pointer"), {0, height, -0.5});
    pointer->opacity = 0;
    auto bar = std::make_shared<Node>(Geometry{
        Box{thickness, thickness, length}, {.diffuse = colors::systemRed, .emission = colors::systemRed}});
    bar->setPosition({0, 0, -length / 2});
    pointer->addChild(std::move(bar));
}

void addLights(Scene& scene) {
    const auto target = addNode(scene, Node(), courtCentre);
    Node spot;
    spot.light = Light{.type = Light::Type::spot,
                       .intensity = 1500,
                       .spotInnerAngle = 35,
                       .spotOuterAngle = 65,
                       .castsShadow = true,
                       .shadowMapSize = 4096,
                       .shadowSampleCount = 16,
                       .shadowBias = 0.01,
                       .shadowRadius = 4};
    spot.lookAtTarget = target;
    constexpr double height = 12;
    addNode(scene, std::move(spot), courtCentre + Vec3(0, height, 0));

    Node ambient;
    ambient.light = Light{.type = Light::Type::ambient, .intensity = 150};
    addNode(scene, std::move(ambient), {0, 0, 0});
}

void addCamera(Scene& scene) {
    Node camera;
    camera.camera = Camera{};
    constexpr double tilt = -std::numbers::pi / 16; // down towards the court
    addNode(scene, std::move(camera), {0, 1.2, 1.0})->setEulerAngles({tilt, 0, 0});
}

} // namespace

Scene GameLogic::create3DScene(RandomSource& random) {
    Scene scene;
    scene.background = {0.05F, 0.05F, 0.08F};
    addFloors(scene);
    addVLine(scene);
    addPointer(scene);
    addLights(scene);
    addCamera(scene);
    addStands(scene, courtWidth, courtLength, random);
    addFlags(scene);
    addCourtLine(scene, {-courtWidth / 2, 0, 0}, {-courtWidth / 2, 0, -courtLength});
    addCourtLine(scene, {courtWidth / 2, 0, 0}, {courtWidth / 2, 0, -courtLength});
    addThrowingBoxes(scene, courtWidth);
    scene.root->addChild(makeReferee(courtWidth, courtLength));
    return scene;
}

void GameLogic::addCourtLine(Scene& scene, const Vec3& from, const Vec3& to) {
    const double dx = to.x - from.x;
    const double dz = to.z - from.z;
    const double length = std::sqrt(dx * dx + dz * dz);
    if (length <= shortestLine) {
        return;
    }
    addNode(scene, box(length, lineThickness, lineWidth, colors::white),
            {(from.x + to.x) / 2, from.y, (from.z + to.z) / 2})
        ->setEulerAngles({0, std::atan2(-dz, dx), 0});
}

void GameLogic::addThrowingBoxes(Scene& scene, double width) {
    constexpr int boxCount = 6;
    const double boxWidth = width / boxCount;
    const double halfWidth = width / 2;
    const double middle = throwingAreaDepth / 2;
    addNode(scene, box(width, courtThickness, throwingAreaDepth, {0.22F, 0.20F, 0.18F}),
            {0, -courtThickness / 2, middle});

    // The home boxes of the two sides: the third from the left is red's, the fourth blue's.
    const auto addTint = [&](double boxCentre, const Color& color) {
        addNode(scene, box(boxWidth, lineThickness, throwingAreaDepth, color.withAlpha(tintAlpha)),
                {boxCentre * boxWidth - halfWidth, lineThickness / 2, middle});
    };
    addTint(2.5, colors::systemRed);
    addTint(3.5, colors::systemBlue);

    addCourtLine(scene, {-halfWidth, 0, 0}, {halfWidth, 0, 0});
    addCourtLine(scene, {-halfWidth, 0, throwingAreaDepth}, {halfWidth, 0, throwingAreaDepth});
    for (int i = 0; i <= boxCount; ++i) {
        const double x = i * boxWidth - halfWidth;
        addCourtLine(scene, {x, 0, 0}, {x, 0, throwingAreaDepth});
    }
}

Node::Ptr GameLogic::makeRestingJack(const Vec3& position) const {
    return makeBall(BallColor::jack, position, PhysicsBody::Type::dynamic);
}

} // namespace vorbel
