// Bodies of revolution about the y axis. The numbers of segments keep every outline round at the sizes in
// which such bodies are seen: a ball near the camera covers about 100 pixels of the largest screens.
#include "platform/render/MeshBuilder.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vorbel {

namespace {

using std::numbers::pi;

// In the order of the degrees of detail.
constexpr int sphereSegments[] = {48, 32, 20};
constexpr int capsuleSegments = 32;
constexpr int capRings = 8;
constexpr int cylinderSegments = 48;

// Arc of a profile around (0, centreY), from one polar angle to another in equal steps, both ends included.
void addArc(std::vector<ProfilePoint>& profile, double radius, double centreY, double from, double to,
            int steps) {
    for (int step = 0; step <= steps; ++step) {
        const double angle = from + (to - from) * step / steps;
        const double sine =
            angle < pi ? std::sin(angle) : 0; // no rounding at the pole: one point for all segments
        profile.push_back({radius * sine, centreY + radius * std::cos(angle), sine, std::cos(angle)});
    }
}

} // namespace

Mesh makeTurnedMesh(std::span<const ProfilePoint> profile, int segments) {
    MeshBuilder builder;
    const double top = profile.front().y;
    const double height = top - profile.back().y;
    // Upwards, so that the rows lie to the left of the columns, which run counter-clockwise seen from above.
    for (auto point = profile.rbegin(); point != profile.rend(); ++point) {
        for (int segment = 0; segment <= segments; ++segment) {
            // The last column has the very place of the first: the surface is closed.
            const double angle = 2 * pi * (segment % segments) / segments;
            const double sine = std::sin(angle);
            const double cosine = std::cos(angle);
            builder.addVertex({{point->radius * sine, point->y, point->radius * cosine},
                               {point->normalRadius * sine, point->normalY, point->normalRadius * cosine},
                               {static_cast<double>(segment) / segments, (top - point->y) / height}});
        }
    }
    builder.addGrid(0, static_cast<std::uint32_t>(segments + 1), static_cast<std::uint32_t>(profile.size()));
    return builder.take();
}

Mesh makeSphereMesh(const Sphere& sphere, Detail detail) {
    const int segments = sphereSegments[static_cast<std::size_t>(detail)];
    std::vector<ProfilePoint> profile;
    addArc(profile, sphere.radius, 0, 0, pi, segments / 2);
    return makeTurnedMesh(profile, segments);
}

Mesh makeCapsuleMesh(const Capsule& capsule) {
    const double capCentre = std::max(capsule.height / 2 - capsule.capRadius, 0.0);
    std::vector<ProfilePoint> profile;
    addArc(profile, capsule.capRadius, capCentre, 0, pi / 2, capRings);
    addArc(profile, capsule.capRadius, -capCentre, pi / 2, pi, capRings);
    return makeTurnedMesh(profile, capsuleSegments);
}

Mesh makeCylinderMesh(const Cylinder& cylinder) {
    const double radius = cylinder.radius;
    const double half = cylinder.height / 2;
    const ProfilePoint profile[] = {{0, half, 0, 1},       {radius, half, 0, 1},   {radius, half, 1, 0},
                                    {radius, -half, 1, 0}, {radius, -half, 0, -1}, {0, -half, 0, -1}};
    return makeTurnedMesh(profile, cylinderSegments);
}

} // namespace vorbel
