#include "platform/physics/BodyShape.h"

#include "platform/physics/BulletVectors.h"

#include <BulletCollision/CollisionShapes/btEmptyShape.h>
#include <btBulletCollisionCommon.h>

#include <algorithm>

namespace vorbel {

namespace {

// Thin enough to look flat and thick enough for contacts to be found on its right side.
constexpr double flatThickness = 0.01; // m

std::unique_ptr<btCollisionShape> makeBox(double width, double height, double length) {
    return std::make_unique<btBoxShape>(btVector3(width, height, length) / 2);
}

struct ShapeMaker {
    using Result = std::unique_ptr<btCollisionShape>;

    Result operator()(const Box& box) const { return makeBox(box.width, box.height, box.length); }
    Result operator()(const Plane& plane) const { return makeBox(plane.width, plane.height, flatThickness); }
    Result operator()(const Sphere& sphere) const { return std::make_unique<btSphereShape>(sphere.radius); }
    Result operator()(const Floor&) const {
        return std::make_unique<btStaticPlaneShape>(btVector3(0, 1, 0), btScalar(0));
    }
    Result operator()(const Capsule& capsule) const {
        return std::make_unique<btCapsuleShape>(capsule.capRadius, capsule.height - 2 * capsule.capRadius);
    }
    Result operator()(const Cylinder& cylinder) const {
        return std::make_unique<btCylinderShape>(
            btVector3(cylinder.radius, cylinder.height / 2, cylinder.radius));
    }
    Result operator()(const Extrusion& extrusion) const {
        double halfWidth = 0;
        double halfHeight = 0;
        for (const glm::dvec2& corner : extrusion.outline) {
            halfWidth = std::max(halfWidth, std::abs(corner.x));
            halfHeight = std::max(halfHeight, std::abs(corner.y));
        }
        return makeBox(2 * halfWidth, 2 * halfHeight, extrusion.depth);
    }
};

} // namespace

std::unique_ptr<btCollisionShape> makeBodyShape(const std::optional<Geometry>& geometry) {
    if (!geometry) {
        return std::make_unique<btEmptyShape>();
    }
    return std::visit(ShapeMaker(), geometry->shape);
}

} // namespace vorbel
