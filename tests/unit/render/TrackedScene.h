// What tests of changes begin with: a floor that mirrors, under a light that casts shadows.
#pragma once

#include "platform/render/Frame.h"

#include <array>

#include <glm/gtc/matrix_transform.hpp>
#include <gtest/gtest.h>

namespace vorbel {

class TrackedScene : public testing::Test {
protected:
    static constexpr int width = 600; // pixels
    static constexpr int height = 400;

    TrackedScene() {
        frame.camera.world = glm::translate(glm::mat4(1), {0, 1, 0});
        frame.spot = SpotLight{.position = {0, 12, -6}, .castsShadow = true, .shadowMapSize = 1024};
        frame.items = {{nodes.data(), Floor{0.05}, {}, glm::mat4(1), 1}};
    }

    std::array<char, 6> nodes{}; // stand for nodes: only their addresses count
    Frame frame;
};

} // namespace vorbel
