// Outlines filled and given a depth.
#include "platform/render/MeshBuilder.h"

#include <algorithm>
#include <array>
#include <numeric>

#include <glm/geometric.hpp>

namespace vorbel {

namespace {

using glm::dvec2;
using Triangle = std::array<std::uint32_t, 3>;

constexpr double smallestArea = 1e-14; // m²: below it three points count as lying on a line

// Twice the signed area of a triangle: positive when counter-clockwise.
double doubleArea(const dvec2& a, const dvec2& b, const dvec2& c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

bool contains(const dvec2& a, const dvec2& b, const dvec2& c, const dvec2& point) {
    return doubleArea(a, b, point) >= 0 && doubleArea(b, c, point) >= 0 && doubleArea(c, a, point) >= 0;
}

// Whether the corner `at` of the rest of the outline can be cut off as a triangle that holds no other corner.
bool isEar(const std::vector<dvec2>& outline, const std::vector<std::uint32_t>& rest, const Triangle& ear) {
    const dvec2& a = outline[ear[0]];
    const dvec2& b = outline[ear[1]];
    const dvec2& c = outline[ear[2]];
    if (doubleArea(a, b, c) <= smallestArea) {
        return false;
    }
    return std::none_of(rest.begin(), rest.end(), [&](std::uint32_t corner) {
        return std::find(ear.begin(), ear.end(), corner) == ear.end() && contains(a, b, c, outline[corner]);
    });
}

// Ear clipping; what cannot be cut any more (an outline that crosses itself) stays open.
std::vector<Triangle> triangulate(const std::vector<dvec2>& outline) {
    std::vector<std::uint32_t> rest(outline.size());
    std::iota(rest.begin(), rest.end(), 0U);
    std::vector<Triangle> triangles;
    for (std::size_t at = 0, tried = 0; rest.size() >= 3 && tried < rest.size();) {
        const std::size_t count = rest.size();
        const Triangle ear = {rest[(at + count - 1) % count], rest[at % count], rest[(at + 1) % count]};
        if (isEar(outline, rest, ear)) {
            triangles.push_back(ear);
            rest.erase(rest.begin() + static_cast<std::ptrdiff_t>(at % count));
            tried = 0;
        } else {
            ++at;
            ++tried;
        }
    }
    return triangles;
}

void addFill(MeshBuilder& builder, const std::vector<dvec2>& outline, double z, double facing) {
    std::uint32_t first = 0;
    for (const dvec2& point : outline) {
        first = builder.addVertex({{point.x, point.y, z}, {0, 0, facing}, {}});
    }
    first -= static_cast<std::uint32_t>(outline.size() - 1);
    for (const Triangle& triangle : triangulate(outline)) {
        const std::uint32_t a = first + triangle[0];
        const std::uint32_t b = first + triangle[1];
        const std::uint32_t c = first + triangle[2];
        facing > 0 ? builder.addTriangle(a, b, c) : builder.addTriangle(a, c, b);
    }
}

void addSide(MeshBuilder& builder, const dvec2& from, const dvec2& to, double halfDepth) {
    const dvec2 along = glm::normalize(to - from);
    const glm::vec3 outward(along.y, -along.x, 0);
    const std::uint32_t first = builder.addVertex({{from.x, from.y, halfDepth}, outward, {}});
    builder.addVertex({{from.x, from.y, -halfDepth}, outward, {}});
    builder.addVertex({{to.x, to.y, halfDepth}, outward, {}});
    builder.addVertex({{to.x, to.y, -halfDepth}, outward, {}});
    builder.addGrid(first, 2, 2);
}

} // namespace

Mesh makeExtrusionMesh(const Extrusion& extrusion) {
    const std::vector<dvec2>& outline = extrusion.outline;
    if (outline.size() < 3) {
        return {};
    }
    MeshBuilder builder;
    const double half = extrusion.depth / 2;
    addFill(builder, outline, half, 1);
    addFill(builder, outline, -half, -1);
    for (std::size_t i = 0; i < outline.size() && half > 0; ++i) {
        const dvec2& next = outline[(i + 1) % outline.size()];
        if (next != outline[i]) {
            addSide(builder, outline[i], next, half);
        }
    }
    return builder.take();
}

} // namespace vorbel
