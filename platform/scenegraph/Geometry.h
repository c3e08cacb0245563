// Shapes of the scene as plain data. Every shape is centred
// on its node's origin unless stated; lengths in metres.
#pragma once

#include "platform/scenegraph/Material.h"

#include <variant>
#include <vector>

#include <glm/vec2.hpp>

namespace vorbel {

// Edges of x = width, y = height, z = length; a chamfer radius above 0 rounds all edges and corners.
struct Box {
    double width = 1;
    double height = 1;
    double length = 1;
    double chamferRadius = 0;
    bool operator==(const Box&) const = default;
};

// Flat rectangle in the x–y plane that faces +z; its picture's top edge is at +y.
struct Plane {
    double width = 1;
    double height = 1;
    bool operator==(const Plane&) const = default;
};

struct Sphere {
    double radius = 0.5;
    bool operator==(const Sphere&) const = default;
};

// Along y: `height` is the full length, both half-spherical caps included, so at least 2·capRadius.
struct Capsule {
    double capRadius = 0.5;
    double height = 2;
    bool operator==(const Capsule&) const = default;
};

// Along y.
struct Cylinder {
    double radius = 0.5;
    double height = 1;
    bool operator==(const Cylinder&) const = default;
};

// Infinite horizontal plane through the node's origin that faces +y.
struct Floor {
    double reflectivity = 0; // 0…1: share of the mirrored scene that is added to the floor's own colour
    bool operator==(const Floor&) const = default;
};

// Closed outline in the x–y plane, counter-clockwise, extruded by `depth` along z and centred on z = 0.
struct Extrusion {
    std::vector<glm::dvec2> outline;
    double depth = 0;
    bool operator==(const Extrusion&) const = default;
};

using Shape = std::variant<Box, Plane, Sphere, Capsule, Cylinder, Floor, Extrusion>;

struct Geometry {
    Shape shape;
    Material material;
    bool operator==(const Geometry&) const = default;
};

} // namespace vorbel
