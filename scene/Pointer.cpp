#include "scene/Pointer.h"

namespace vorbel::arena {

void addPointer(Scene& scene) {
    constexpr double thickness = 0.02; // m
    constexpr double length = 2;       // m
    auto pointer = std::make_shared<Node>(std::string(pointerName));
    pointer->setPosition({0, pointerHeight, -0.5});
    pointer->opacity = 0;
    auto bar = std::make_shared<Node>(Geometry{
        Box{thickness, thickness, length}, {.diffuse = colors::systemRed, .emission = colors::systemRed}});
    bar->setPosition({0, 0, -length / 2});
    pointer->addChild(std::move(bar));
    scene.root->addChild(std::move(pointer));
}

} // namespace vorbel::arena
