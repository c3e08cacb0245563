// Triangle meshes of the scene's shapes.
#pragma once

#include "platform/scenegraph/Geometry.h"

#include <cstdint>
#include <vector>

#include <glm/vec2.hpp>
#include <glm/vec3.hpp>

namespace vorbel {

struct Vertex {
    glm::vec3 position; // metres, in the shape's frame
    glm::vec3 normal;   // unit length, outward
    glm::vec2 uv;       // (0, 0) is the upper left corner of a picture, (1, 1) the lower right one
};

// Indexed triangles, counter-clockwise when seen from outside.
struct Mesh {
    std::vector<Vertex> vertices;
    std::vector<std::uint32_t> indices; // three a triangle
};

// How finely round bodies are divided.
enum class Detail { fine, medium, coarse };

// A floor becomes a square of edge 2 around the origin, to be scaled to the horizon. Only spheres have more
// than one degree of detail.
[[nodiscard]] Mesh makeMesh(const Shape& shape, Detail detail = Detail::fine);

} // namespace vorbel
