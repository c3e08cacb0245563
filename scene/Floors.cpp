#include "scene/Floors.h"

#include "rules/CourtGeometry.h"

namespace vorbel::arena {

namespace {

Node::Ptr addNode(Scene& scene, Geometry geometry, const Vec3& position) {
    auto node = std::make_shared<Node>(std::move(geometry));
    node->setPosition(position);
    scene.root->addChild(node);
    return node;
}

void addUnseen(Scene& scene, const Shape& shape, const Vec3& position, const PhysicsBody& body) {
    const Node::Ptr node = addNode(scene, {shape, {}}, position);
    node->opacity = 0;
    node->body = std::make_shared<PhysicsBody>(body);
}

} // namespace

void addFloors(Scene& scene) {
    constexpr double arenaFloorY = -0.05;
    constexpr double mirror = 0.05;
    addNode(scene, {Floor{mirror}, {.diffuse = {0.10F, 0.10F, 0.12F}}}, {0, arenaFloorY, 0});
    addNode(scene, {Box{court::width, courtThickness, court::length}, {.diffuse = {0.13F, 0.52F, 0.31F}}},
            {0, -courtThickness / 2, -court::length / 2});

    addUnseen(scene, Floor{}, {0, court::floorY, 0}, {.friction = 0.6, .restitution = 0});
    constexpr Box backWall{court::width, 1, 0.1};
    addUnseen(scene, backWall, {0, backWall.height / 2, -court::length}, {.restitution = 0});
}

} // namespace vorbel::arena
