// Places and velocities that agree but for rounding.
#pragma once

#include "math/Vector.h"

#include <gtest/gtest.h>

#include <glm/geometric.hpp>

namespace vorbel::test {

inline void expectNear(const Vec3& actual, const Vec3& expected) {
    EXPECT_NEAR(glm::distance(actual, expected), 0, 1e-9)
        << actual.x << ' ' << actual.y << ' ' << actual.z << " instead of " << expected.x << ' ' << expected.y
        << ' ' << expected.z;
}

} // namespace vorbel::test
