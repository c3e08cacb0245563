// Triangle meshes of the shapes: closed, facing outwards, of the right size.
#include "platform/render/Mesh.h"

#include <cmath>
#include <map>
#include <numbers>
#include <tuple>

#include <glm/common.hpp>
#include <glm/geometric.hpp>
#include <gmock/gmock.h>

namespace vorbel {
namespace {

using Place = std::tuple<float, float, float>;

Place placeOf(const Vertex& vertex) {
    return {vertex.position.x, vertex.position.y, vertex.position.z};
}

// How often each edge is walked one way minus the other way; all zero in a closed mesh.
std::map<std::pair<Place, Place>, int> openEdges(const Mesh& mesh) {
    std::map<std::pair<Place, Place>, int> balance;
    for (std::size_t i = 0; i < mesh.indices.size(); ++i) {
        const std::size_t next = i % 3 == 2 ? i - 2 : i + 1;
        const Place from = placeOf(mesh.vertices[mesh.indices[i]]);
        const Place to = placeOf(mesh.vertices[mesh.indices[next]]);
        from < to ? ++balance[{from, to}] : --balance[{to, from}];
    }
    std::erase_if(balance, [](const auto& edge) { return edge.second == 0; });
    return balance;
}

glm::dvec3 corner(const Mesh& mesh, std::size_t index) {
    return mesh.vertices[mesh.indices[index]].position;
}

// Positive when the triangles of a closed mesh are counter-clockwise from outside.
double volume(const Mesh& mesh) {
    double sixfold = 0;
    for (std::size_t i = 0; i < mesh.indices.size(); i += 3) {
        sixfold += glm::dot(corner(mesh, i), glm::cross(corner(mesh, i + 1), corner(mesh, i + 2)));
    }
    return sixfold / 6;
}

// The smallest cosine between a triangle and the normals at its corners.
double worstNormal(const Mesh& mesh) {
    double worst = 1;
    for (std::size_t i = 0; i < mesh.indices.size(); i += 3) {
        const glm::dvec3 across = corner(mesh, i + 1) - corner(mesh, i);
        const glm::dvec3 facing = glm::normalize(glm::cross(across, corner(mesh, i + 2) - corner(mesh, i)));
        for (std::size_t k = i; k < i + 3; ++k) {
            worst = std::min(worst, glm::dot(facing, glm::dvec3(mesh.vertices[mesh.indices[k]].normal)));
        }
    }
    return worst;
}

double worstNormalLength(const Mesh& mesh) {
    double worst = 0;
    for (const Vertex& vertex : mesh.vertices) {
        worst = std::max(worst, std::abs(1.0 - static_cast<double>(glm::length(vertex.normal))));
    }
    return worst;
}

glm::vec3 extent(const Mesh& mesh) {
    glm::vec3 low(1e9F);
    glm::vec3 high(-1e9F);
    for (const Vertex& vertex : mesh.vertices) {
        low = glm::min(low, vertex.position);
        high = glm::max(high, vertex.position);
    }
    return high - low;
}

Extrusion halfDisc() {
    Extrusion shape{{{0, 0}}, 0.002};
    for (int degrees = 45; degrees <= 225; degrees += 5) {
        const double angle = degrees * std::numbers::pi / 180;
        shape.outline.emplace_back(0.09 * std::cos(angle), 0.09 * std::sin(angle));
    }
    return shape;
}

// An arrow head: a corner that points inwards.
Extrusion notched() {
    return {{{0, 0}, {1, -1}, {0, 2}, {-1, -1}}, 0.5};
}

struct Body {
    std::string name;
    Shape shape;
    glm::vec3 extent;
    double volume;
};

void PrintTo(const Body& body, std::ostream* stream) {
    *stream << body.name;
}

class ClosedMeshTest : public testing::TestWithParam<Body> {};

TEST_P(ClosedMeshTest, HasNoOpenEdge) {
    EXPECT_TRUE(openEdges(makeMesh(GetParam().shape)).empty());
}

TEST_P(ClosedMeshTest, HasNormalsOfUnitLengthThatPointOutwards) {
    const Mesh mesh = makeMesh(GetParam().shape);
    EXPECT_LT(worstNormalLength(mesh), 1e-5);
    EXPECT_GT(worstNormal(mesh), 0.9);
}

TEST_P(ClosedMeshTest, HasTheExtentOfItsShape) {
    const glm::vec3 difference = glm::abs(extent(makeMesh(GetParam().shape)) - GetParam().extent);
    EXPECT_LT(glm::length(difference), 0.001F * glm::length(GetParam().extent));
}

TEST_P(ClosedMeshTest, HasTheVolumeOfItsShape) {
    EXPECT_NEAR(volume(makeMesh(GetParam().shape)), GetParam().volume, 0.02 * GetParam().volume);
}

constexpr double pi = std::numbers::pi;

// A rounded box: its core, six slabs, twelve quarter cylinders and a sphere of eight corners.
double roundedVolume(const glm::dvec3& core, double radius) {
    return core.x * core.y * core.z + 2 * radius * (core.x * core.y + core.y * core.z + core.z * core.x) +
           pi * radius * radius * (core.x + core.y + core.z) + 4 * pi / 3 * radius * radius * radius;
}

INSTANTIATE_TEST_SUITE_P(
    Shapes, ClosedMeshTest,
    testing::Values(
        Body{"box", Box{6, 0.1, 12.5}, {6, 0.1, 12.5}, 7.5},
        Body{"roundedBox",
             Box{0.5, 0.35, 13.5, 0.02},
             {0.5, 0.35, 13.5},
             roundedVolume({0.46, 0.31, 13.46}, 0.02)},
        Body{"chamferLargerThanTheBox", Box{1, 1, 2, 9}, {1, 1, 2}, roundedVolume({0, 0, 1}, 0.5)},
        Body{"sphere", Sphere{0.05}, {0.1, 0.1, 0.1}, 4 * pi / 3 * 0.000125},
        Body{"capsule", Capsule{0.11, 0.33}, {0.22, 0.33, 0.22}, pi * 0.0121 * 0.11 + 4 * pi / 3 * 0.001331},
        Body{"sphericalCapsule", Capsule{0.5, 1}, {1, 1, 1}, pi / 6},
        Body{"cylinder", Cylinder{0.09, 0.002}, {0.18, 0.002, 0.18}, pi * 0.0081 * 0.002},
        Body{"halfDisc",
             halfDisc(),
             {0.09 * (1 + std::sqrt(0.5)), 0.09 * (1 + std::sqrt(0.5)), 0.002},
             pi * 0.0081 * 0.001},
        Body{"notchedOutline", notched(), {2, 3, 0.5}, 1.0}),
    [](const auto& test) { return test.param.name; });

TEST(MeshTest, PlaneFacesTheViewerWithItsPictureUpright) {
    const Mesh mesh = makeMesh(Plane{0.46, 0.32});
    EXPECT_EQ(mesh.indices.size(), 6U);
    EXPECT_GT(worstNormal(mesh), 0.999);
    for (const Vertex& vertex : mesh.vertices) {
        EXPECT_EQ(vertex.normal, glm::vec3(0, 0, 1));
        EXPECT_EQ(vertex.uv.x, vertex.position.x > 0 ? 1 : 0);
        EXPECT_EQ(vertex.uv.y, vertex.position.y > 0 ? 0 : 1) << "the picture's top edge is at +y";
    }
}

TEST(MeshTest, FloorFacesUp) {
    const Mesh mesh = makeMesh(Floor{});
    EXPECT_GT(worstNormal(mesh), 0.999);
    EXPECT_EQ(mesh.vertices.front().normal, glm::vec3(0, 1, 0));
    EXPECT_EQ(extent(mesh), glm::vec3(2, 0, 2));
}

TEST(MeshTest, OutlineOfFewerThanThreePointsIsEmpty) {
    EXPECT_TRUE(makeMesh(Extrusion{{{0, 0}, {1, 0}}, 1}).indices.empty());
    EXPECT_TRUE(makeMesh(Extrusion{}).indices.empty());
}

TEST(MeshTest, OutlineWithoutDepthHasTwoFacesAndNoSides) {
    EXPECT_EQ(makeMesh(Extrusion{{{0, 0}, {1, 0}, {0, 1}}, 0}).indices.size(), 6U);
}

TEST(MeshTest, ChamferOfABoxIsRound) {
    const glm::vec3 inner(0.48F);
    for (const Vertex& vertex : makeMesh(Box{1, 1, 1, 0.02}).vertices) {
        const glm::vec3 core = glm::clamp(vertex.position, -inner, inner);
        EXPECT_NEAR(glm::distance(vertex.position, core), 0.02F, 1e-6F);
    }
}

} // namespace
} // namespace vorbel
