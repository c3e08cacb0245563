// Boxes, planes and the floor.
#include "platform/render/MeshBuilder.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include <glm/common.hpp>
#include <glm/geometric.hpp>

namespace vorbel {

namespace {

using glm::dvec3;

constexpr int chamferSteps = 4; // of the eighth of a circle on each side of an edge

// A box face with its axes: across × up = outward.
struct Face {
    dvec3 across;
    dvec3 up;
    dvec3 outward;
};

constexpr std::array<Face, 6> faces = {{
    {{0, 0, -1}, {0, 1, 0}, {1, 0, 0}},
    {{0, 0, 1}, {0, 1, 0}, {-1, 0, 0}},
    {{1, 0, 0}, {0, 0, -1}, {0, 1, 0}},
    {{1, 0, 0}, {0, 0, 1}, {0, -1, 0}},
    {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}},
    {{-1, 0, 0}, {0, 1, 0}, {0, 0, -1}},
}};

// Places of the grid lines along a face's edge of length 2·half: equal angles on the rounded parts.
std::vector<double> gridLines(double half, double radius) {
    if (radius <= 0) {
        return {-half, half};
    }
    std::vector<double> lines;
    for (int step = 0; step <= chamferSteps; ++step) {
        const double angle = (chamferSteps - step) * std::numbers::pi / 4 / chamferSteps;
        lines.push_back(-(half - radius) - radius * std::tan(angle));
    }
    for (int step = chamferSteps; step >= 0; --step) {
        lines.push_back(-lines[static_cast<std::size_t>(step)]);
    }
    return lines;
}

// The point of the rounded box that is nearest to a point of the sharp box's surface.
Vertex roundedVertex(const dvec3& sharp, const dvec3& half, double radius, const dvec3& flatNormal) {
    const dvec3 core = glm::clamp(sharp, -(half - radius), half - radius);
    const dvec3 away = sharp - core;
    const dvec3 normal = radius > 0 ? glm::normalize(away) : flatNormal;
    return {glm::vec3(core + radius * normal), glm::vec3(normal), {}};
}

void addFace(MeshBuilder& builder, const Face& face, const dvec3& half, double radius) {
    const double halfAcross = glm::dot(glm::abs(face.across), half);
    const double halfUp = glm::dot(glm::abs(face.up), half);
    const std::vector<double> columns = gridLines(halfAcross, radius);
    const std::vector<double> rows = gridLines(halfUp, radius);
    std::uint32_t last = 0;
    for (const double y : rows) {
        for (const double x : columns) {
            const dvec3 sharp = face.across * x + face.up * y + face.outward * half;
            Vertex vertex = roundedVertex(sharp, half, radius, face.outward);
            vertex.uv = {0.5 + 0.5 * x / halfAcross, 0.5 - 0.5 * y / halfUp};
            last = builder.addVertex(vertex);
        }
    }
    const auto columnCount = static_cast<std::uint32_t>(columns.size());
    const auto rowCount = static_cast<std::uint32_t>(rows.size());
    builder.addGrid(last + 1 - columnCount * rowCount, columnCount, rowCount);
}

} // namespace

Mesh makeBoxMesh(const Box& box) {
    const dvec3 half = dvec3(box.width, box.height, box.length) / 2.0;
    const double radius = std::clamp(box.chamferRadius, 0.0, std::min({half.x, half.y, half.z}));
    MeshBuilder builder;
    for (const Face& face : faces) {
        addFace(builder, face, half, radius);
    }
    return builder.take();
}

Mesh makePlaneMesh(const Plane& plane) {
    MeshBuilder builder;
    addFace(builder, faces[4], {plane.width / 2, plane.height / 2, 0}, 0);
    return builder.take();
}

Mesh makeFloorMesh() {
    MeshBuilder builder;
    addFace(builder, faces[2], {1, 0, 1}, 0);
    return builder.take();
}

} // namespace vorbel
