// Building blocks of meshes.
#pragma once

#include "platform/render/Mesh.h"

#include <span>

namespace vorbel {

class MeshBuilder {
public:
    // Appends a vertex and returns its index.
    std::uint32_t addVertex(const Vertex& vertex);

    // Counter-clockwise seen from outside.
    void addTriangle(std::uint32_t a, std::uint32_t b, std::uint32_t c);

    // Two triangles over the grid of vertices first … first + columns·rows − 1, row after row, for every
    // cell; rows follow one another to the left of the columns' direction, seen from outside. Triangles
    // without area are left out.
    void addGrid(std::uint32_t first, std::uint32_t columns, std::uint32_t rows);

    [[nodiscard]] Mesh take() { return std::move(mesh_); }

private:
    Mesh mesh_;
};

// Point of the outline that is turned about the y axis.
struct ProfilePoint {
    double radius; // metres from the axis, at least 0
    double y;
    double normalRadius; // outward normal, unit length
    double normalY;
};

[[nodiscard]] Mesh makeBoxMesh(const Box& box);
[[nodiscard]] Mesh makePlaneMesh(const Plane& plane);
[[nodiscard]] Mesh makeFloorMesh();
[[nodiscard]] Mesh makeExtrusionMesh(const Extrusion& extrusion);

// The profile runs from the top to the bottom of the body.
[[nodiscard]] Mesh makeTurnedMesh(std::span<const ProfilePoint> profile, int segments);
[[nodiscard]] Mesh makeSphereMesh(const Sphere& sphere, Detail detail);
[[nodiscard]] Mesh makeCapsuleMesh(const Capsule& capsule);
[[nodiscard]] Mesh makeCylinderMesh(const Cylinder& cylinder);

} // namespace vorbel
