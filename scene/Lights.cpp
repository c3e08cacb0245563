#include "scene/Lights.h"

#include "rules/CourtGeometry.h"

namespace vorbel::arena {

void addLights(Scene& scene) {
    constexpr Vec3 courtCentre{0, 0, -court::length / 2};
    auto target = std::make_shared<Node>();
    target->setPosition(courtCentre);
    scene.root->addChild(target);

    auto spot = std::make_shared<Node>();
    spot->light = Light{.type = Light::Type::spot,
                        .intensity = 1500,
                        .spotInnerAngle = 35,
                        .spotOuterAngle = 65,
                        .castsShadow = true,
                        .shadowMapSize = 4096,
                        .shadowSampleCount = 16,
                        .shadowBias = 0.01,
                        .shadowRadius = 4};
    spot->lookAtTarget = target;
    constexpr double height = 12; // m
    spot->setPosition(courtCentre + Vec3(0, height, 0));
    scene.root->addChild(std::move(spot));

    auto ambient = std::make_shared<Node>();
    ambient->light = Light{.type = Light::Type::ambient, .intensity = 150};
    scene.root->addChild(std::move(ambient));
}

} // namespace vorbel::arena
