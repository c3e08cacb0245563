#include "scene/Pointer.h"

#include "rules/CourtGeometry.h"

namespace vorbel::arena {

namespace {

constexpr double thickness = 0.02; // m
constexpr double length = 2;       // m

Node::Ptr bar(const Vec3& size, const Color& color) {
    auto bar =
        std::make_shared<Node>(Geometry{Box{size.x, size.y, size.z}, {.diffuse = color, .emission = color}});
    bar->setPosition({0, 0, -size.z / 2});
    return bar;
}

void addBars(Node& pointer, PointerLook look) {
    if (look == PointerLook::usual) {
        return pointer.addChild(bar({thickness, thickness, length}, colors::systemRed));
    }
    constexpr double edge = thickness / 2; // m, on each side, and before the tip
    pointer.addChild(bar({1.5 * thickness, thickness, length}, colors::white));
    pointer.addChild(bar({1.5 * thickness + 2 * edge, thickness / 2, length + edge}, colors::black)); // lower
}

} // namespace

void addPointer(Scene& scene) {
    auto pointer = std::make_shared<Node>(std::string(pointerName));
    pointer->setPosition({0, pointerHeight, court::throwOrigin(BallColor::red).z});
    pointer->opacity = 0;
    addBars(*pointer, PointerLook::usual);
    scene.root->addChild(std::move(pointer));
}

void setPointerLook(Scene& scene, PointerLook look) {
    if (const Node::Ptr pointer = scene.root->findChild(pointerName)) {
        while (!pointer->children().empty()) {
            pointer->removeChild(*pointer->children().front());
        }
        addBars(*pointer, look);
    }
}

} // namespace vorbel::arena
