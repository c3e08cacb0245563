#include "scene/Referee.h"

#include <numbers>

namespace vorbel::arena {

namespace {

constexpr Color skin{0.87F, 0.68F, 0.53F};
constexpr Color shirtOrange{0.95F, 0.55F, 0.05F};

Node::Ptr part(Shape shape, const Color& color, const Vec3& position) {
    auto node = std::make_shared<Node>(Geometry{std::move(shape), {.diffuse = color}});
    node->setPosition(position);
    return node;
}

Node::Ptr arm(double x, double turnAboutZ) {
    constexpr Capsule upperAndLower{0.0385, 0.297};
    constexpr Sphere hand{0.04235};
    Node::Ptr arm = part(upperAndLower, shirtOrange, {x, 0.6655, 0});
    arm->setEulerAngles({0, 0, turnAboutZ});
    arm->addChild(part(hand, skin, {0, -0.1562, 0}));
    return arm;
}

Node::Ptr head() {
    Node::Ptr head = part(Sphere{0.088}, skin, {0, 1.012, 0});
    head->scale = {0.93, 1.12, 0.97};
    const Node::Ptr hair = part(Sphere{0.09328}, colors::black, {0, 0.0264, -0.0044});
    hair->scale = {1, 0.55, 1};
    head->addChild(hair);
    return head;
}

} // namespace

Node::Ptr makeReferee(double courtWidth, double courtLength) {
    constexpr Capsule leg{0.0605, 0.374};
    constexpr double raised = 9 * std::numbers::pi / 10;
    constexpr double hanging = -std::numbers::pi / 10;
    constexpr double besideTheLine = 0.4; // m, outside the side line

    auto figure = std::make_shared<Node>();
    figure->addChild(part(leg, colors::black, {0.07865, 0.187, 0}));
    figure->addChild(part(leg, colors::black, {-0.07865, 0.187, 0}));
    figure->addChild(part(Capsule{0.11, 0.33}, shirtOrange, {0, 0.649, 0}));
    figure->addChild(arm(0.1585, raised));
    figure->addChild(arm(-0.1585, hanging));
    figure->addChild(head());
    figure->addChild(part(Sphere{0.01936}, colors::lightGray, {0, 1.0032, 0.0792})); // marks the face

    figure->setPosition({-courtWidth / 2 - besideTheLine, 0, -courtLength / 2});
    figure->setEulerAngles({0, -std::numbers::pi / 2, 0});
    return figure;
}

} // namespace vorbel::arena
