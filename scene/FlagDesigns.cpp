#include "scene/FlagDesigns.h"

#include "scene/FlagColors.h"

#include <cmath>
#include <initializer_list>
#include <numbers>

namespace vorbel::arena {

namespace {

using namespace flags;

// Layers lie millimetres apart, so that they do not flicker through one another.
constexpr double firstLayer = 0.001;
constexpr double secondLayer = 0.002;
constexpr double cantonLayer = 0.003;
constexpr double emblemDepth = 0.002;
constexpr double emblemRadius = 0.28; // of the flag's height

Node::Ptr layer(Shape shape, const Color& color, const Vec3& position) {
    auto node = std::make_shared<Node>(Geometry{std::move(shape), {.diffuse = color, .doubleSided = true}});
    node->setPosition(position);
    return node;
}

Node::Ptr flagWithField(const Color& color, double width, double height) {
    auto flag = std::make_shared<Node>();
    flag->addChild(layer(Plane{width, height}, color, {0, 0, 0}));
    return flag;
}

Node::Ptr crossBar(double w, double h, const Color& color, double z) {
    return layer(Plane{w, h}, color, {0, 0, z});
}

glm::dvec2 onCircle(double radius, double degrees) {
    const double angle = degrees * std::numbers::pi / 180;
    return {radius * std::cos(angle), radius * std::sin(angle)};
}

// From the centre along the arc; degrees counter-clockwise from +x.
Extrusion halfDisc(double radius, double startDeg, double endDeg) {
    constexpr int steps = 24;
    Extrusion disc{{{0, 0}}, emblemDepth};
    for (int i = 0; i <= steps; ++i) {
        disc.outline.push_back(onCircle(radius, startDeg + (endDeg - startDeg) * i / steps));
    }
    return disc;
}

Extrusion triangle(bool pointingUp, double radius) {
    const double first = pointingUp ? 90 : -90;
    return {{onCircle(radius, first), onCircle(radius, first + 120), onCircle(radius, first + 240)},
            emblemDepth};
}

} // namespace

Node::Ptr makeStripedFlag(std::span<const Color> stripeColors, bool horizontal, double width, double height) {
    auto flag = std::make_shared<Node>();
    const auto count = static_cast<double>(stripeColors.size());
    const Plane stripe{horizontal ? width : width / count, horizontal ? height / count : height};
    double place = 0;
    for (const Color& color : stripeColors) {
        const double x = stripe.width / 2 - width / 2 + place * stripe.width;
        const double y = height / 2 - stripe.height / 2 - place * stripe.height;
        flag->addChild(layer(stripe, color, horizontal ? Vec3(0, y, 0) : Vec3(x, 0, 0)));
        ++place;
    }
    return flag;
}

Node::Ptr makeCircleFlag(const Color& background, const Color& circle, double width, double height) {
    Node::Ptr flag = flagWithField(background, width, height);
    const Cylinder shape{emblemRadius * height, emblemDepth};
    auto disc = std::make_shared<Node>(Geometry{shape, {.diffuse = circle}});
    disc->setPosition({0, 0, secondLayer});
    disc->setEulerAngles({std::numbers::pi / 2, 0, 0}); // faces the viewer
    flag->addChild(std::move(disc));
    return flag;
}

Node::Ptr makeCrossFlag(const Color& background, const Color& crossColor, const Color& innerCrossColor,
                        double width, double height) {
    Node::Ptr flag = flagWithField(background, width, height);
    flag->addChild(crossBar(width, 0.22 * height, crossColor, firstLayer));
    flag->addChild(crossBar(0.2 * width, height, crossColor, firstLayer));
    flag->addChild(crossBar(width, 0.1 * height, innerCrossColor, secondLayer));
    flag->addChild(crossBar(0.09 * width, height, innerCrossColor, secondLayer));
    return flag;
}

Node::Ptr makeCantonFlag(const Color& fieldColor, double width, double height) {
    Node::Ptr flag = flagWithField(fieldColor, width, height);
    const Node::Ptr canton = makeCrossFlag(cantonNavy, white, crossRed, width / 2, height / 2);
    canton->setPosition({-width / 4, height / 4, cantonLayer});
    flag->addChild(canton);
    return flag;
}

Node::Ptr makeKoreaFlag(double width, double height) {
    Node::Ptr flag = flagWithField(white, width, height);
    const double radius = emblemRadius * height;
    flag->addChild(layer(halfDisc(radius, 45, 225), crossRed, {0, 0, secondLayer}));
    flag->addChild(layer(halfDisc(radius, 225, 405), koreaBlue, {0, 0, secondLayer}));
    return flag;
}

Node::Ptr makeStarFlag(double width, double height) {
    Node::Ptr flag = flagWithField(white, width, height);
    const double barHeight = 0.14 * height;
    const double barY = 0.5 * height - 0.7 * barHeight;
    for (const double y : {barY, -barY}) {
        flag->addChild(layer(Plane{width, barHeight}, starBlue, {0, y, firstLayer}));
    }
    for (const bool pointingUp : {true, false}) {
        flag->addChild(layer(triangle(pointingUp, emblemRadius * height), starBlue, {0, 0, secondLayer}));
    }
    return flag;
}

} // namespace vorbel::arena
