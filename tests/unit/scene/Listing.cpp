#include "tests/unit/scene/Listing.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <variant>

namespace vorbel::test {

namespace {

std::string number(double value) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.6g", std::abs(value) < 1e-9 ? 0.0 : value);
    return text.data();
}

std::string vector(const Vec3& v) {
    return "(" + number(v.x) + " " + number(v.y) + " " + number(v.z) + ")";
}

std::string color(const Color& c) {
    const std::string rgb = number(c.red) + " " + number(c.green) + " " + number(c.blue);
    return "rgb(" + rgb + (c.alpha == 1 ? "" : " / " + number(c.alpha)) + ")";
}

struct ShapeText {
    std::string operator()(const Box& box) const {
        return "box " + vector({box.width, box.height, box.length}) +
               (box.chamferRadius == 0 ? "" : " chamfer " + number(box.chamferRadius));
    }
    std::string operator()(const Plane& plane) const {
        return "plane " + number(plane.width) + " × " + number(plane.height);
    }
    std::string operator()(const Sphere& sphere) const { return "sphere " + number(sphere.radius); }
    std::string operator()(const Capsule& capsule) const {
        return "capsule " + number(capsule.capRadius) + " × " + number(capsule.height);
    }
    std::string operator()(const Cylinder& cylinder) const {
        return "cylinder " + number(cylinder.radius) + " × " + number(cylinder.height);
    }
    std::string operator()(const Floor& floor) const {
        return "floor mirroring " + number(floor.reflectivity);
    }
    std::string operator()(const Extrusion& extrusion) const {
        std::string text = "extrusion of " + number(extrusion.depth) + ":";
        for (const auto& point : extrusion.outline) {
            text += " " + number(point.x) + "," + number(point.y);
        }
        return text;
    }
};

std::string materialText(const Material& material) {
    std::string text = material.picture.empty() ? " " + color(material.diffuse) : " " + material.picture;
    text += material.emission == colors::black ? "" : " gives off " + color(material.emission);
    text += material.doubleSided ? " double-sided" : "";
    text += material.unlit ? " unlit" : "";
    return text + (material.seams ? " seams" : "");
}

std::string lightText(const Light& light) {
    std::string text = (light.type == Light::Type::spot ? " spot " : " ambient ") + number(light.intensity) +
                       " " + color(light.color);
    if (light.type == Light::Type::spot) {
        text += " cone " + number(light.spotInnerAngle) + ".." + number(light.spotOuterAngle);
        text += light.castsShadow ? " shadow" : "";
        for (const double value : {double(light.shadowMapSize), double(light.shadowSampleCount),
                                   light.shadowBias, light.shadowRadius}) {
            text += " " + number(value);
        }
    }
    return text;
}

std::string bodyText(const PhysicsBody& body) {
    constexpr std::array types{" fixed", " kinematic", " dynamic"};
    std::string text = types[static_cast<std::size_t>(body.type)];
    text += " mass " + number(body.mass) + " friction " + number(body.friction) + "," +
            number(body.rollingFriction);
    return text + " restitution " + number(body.restitution) + " damping " + number(body.damping) + "," +
           number(body.angularDamping);
}

void list(const Node& node, const std::string& indent, std::vector<std::string>& lines) {
    std::string line = indent + (node.name.empty() ? "node" : node.name) + " at " + vector(node.position());
    const Quat& turn = node.orientation();
    if (turn != Quat(1, 0, 0, 0)) {
        line += " turned " + number(turn.w) + vector({turn.x, turn.y, turn.z});
    }
    line += node.scale == Vec3(1) ? "" : " scaled " + vector(node.scale);
    line += node.opacity == 1 ? "" : " opacity " + number(node.opacity);
    if (node.geometry) {
        line += ": " + std::visit(ShapeText{}, node.geometry->shape) + materialText(node.geometry->material);
    }
    line += node.light ? ":" + lightText(*node.light) : "";
    const auto target = node.lookAtTarget.lock();
    line += target ? " towards " + vector(target->position()) : "";
    line += node.camera ? ": camera of " + number(node.camera->fieldOfView) + "°" : "";
    lines.push_back(line + (node.body ? ";" + bodyText(*node.body) : ""));
    for (const Node::Ptr& child : node.children()) {
        list(*child, indent + "  ", lines);
    }
}

} // namespace

std::vector<std::string> listingOf(const Scene& scene) {
    std::vector<std::string> lines{"background " + color(scene.background) + ", gravity " +
                                   vector(scene.gravity)};
    for (const Node::Ptr& node : scene.root->children()) {
        list(*node, "", lines);
    }
    return lines;
}

void expectListed(const std::vector<std::string>& lines, const std::filesystem::path& file) {
    if (std::getenv("VORBEL_UPDATE_LISTINGS") != nullptr) {
        std::ofstream listing(file);
        for (const std::string& line : lines) {
            listing << line << '\n';
        }
    }
    std::ifstream listing(file);
    std::string expected;
    std::size_t count = 0;
    while (std::getline(listing, expected)) {
        ASSERT_LT(count, lines.size()) << file.filename() << " goes on: " << expected;
        ASSERT_EQ(lines[count], expected) << file.filename() << ", line " << count + 1;
        ++count;
    }
    EXPECT_EQ(count, lines.size()) << "more than " << file.filename() << " lists";
}

} // namespace vorbel::test
