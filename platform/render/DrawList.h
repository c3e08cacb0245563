// A frame sorted into what the graphics hardware draws in one go each.
#pragma once

#include "platform/render/TrackedFrame.h"

#include <cstddef>
#include <string_view>

#include <glm/vec4.hpp>

namespace vorbel {

// What differs between the items of a batch, as the shaders read it.
struct Instance {
    glm::vec4 worldRows[3]; // the upper three rows of the world matrix
    glm::vec4 diffuse;      // linear light; w: alpha times opacity
    glm::vec4 emission;     // linear light; w: 1 when the surface has dark edges
};

// The way in which things are drawn.
struct Look {
    Shape shape;
    std::string picture; // empty: none
    bool unlit = false;
    bool doubleSided = false;
    bool operator==(const Look&) const = default;
};

// Items of one look, as indices into the frame.
struct Group {
    Look look;
    std::vector<std::size_t> items;
};

struct MirrorFloor {
    Look look;
    Instance instance;           // reaches to the camera's far plane
    glm::vec4 plane{0, 1, 0, 0}; // xyz: upward normal, unit length; w: −normal·point, metres
    float reflectivity = 0;
};

struct DrawList {
    std::vector<Instance> instances; // one for each item of the frame
    std::vector<Group> solid;        // opaque to the edges of their meshes, the nearest of a group first
    std::vector<Group> cutOut;       // opaque where their picture is
    std::vector<Group> blended;      // see-through, one item each, the farthest from the camera first
    std::optional<MirrorFloor> floor;
};

// Of several floors the first is taken.
[[nodiscard]] DrawList makeDrawList(const Frame& frame);

// For items that have only moved, and are neither see-through nor a floor.
void updateInstances(DrawList& list, const Frame& frame, const std::vector<std::size_t>& moved);

} // namespace vorbel
