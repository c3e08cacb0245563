#include "platform/render/MeshBuilder.h"

namespace vorbel {

std::uint32_t MeshBuilder::addVertex(const Vertex& vertex) {
    mesh_.vertices.push_back(vertex);
    return static_cast<std::uint32_t>(mesh_.vertices.size() - 1);
}

void MeshBuilder::addTriangle(std::uint32_t a, std::uint32_t b, std::uint32_t c) {
    mesh_.indices.insert(mesh_.indices.end(), {a, b, c});
}

void MeshBuilder::addGrid(std::uint32_t first, std::uint32_t columns, std::uint32_t rows) {
    const auto samePlace = [this](std::uint32_t a, std::uint32_t b) {
        return mesh_.vertices[a].position == mesh_.vertices[b].position;
    };
    const auto addUnlessEmpty = [&](std::uint32_t a, std::uint32_t b, std::uint32_t c) {
        if (!samePlace(a, b) && !samePlace(b, c) && !samePlace(c, a)) {
            addTriangle(a, b, c);
        }
    };
    for (std::uint32_t row = 0; row + 1 < rows; ++row) {
        for (std::uint32_t column = 0; column + 1 < columns; ++column) {
            const std::uint32_t corner = first + row * columns + column;
            addUnlessEmpty(corner, corner + 1, corner + columns + 1);
            addUnlessEmpty(corner, corner + columns + 1, corner + columns);
        }
    }
}

namespace {

struct ShapeMesher {
    Detail detail;
    Mesh operator()(const Box& box) const { return makeBoxMesh(box); }
    Mesh operator()(const Plane& plane) const { return makePlaneMesh(plane); }
    Mesh operator()(const Sphere& sphere) const { return makeSphereMesh(sphere, detail); }
    Mesh operator()(const Capsule& capsule) const { return makeCapsuleMesh(capsule); }
    Mesh operator()(const Cylinder& cylinder) const { return makeCylinderMesh(cylinder); }
    Mesh operator()(const Floor&) const { return makeFloorMesh(); }
    Mesh operator()(const Extrusion& extrusion) const { return makeExtrusionMesh(extrusion); }
};

} // namespace

Mesh makeMesh(const Shape& shape, Detail detail) {
    return std::visit(ShapeMesher{detail}, shape);
}

} // namespace vorbel
