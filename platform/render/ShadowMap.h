// The depth map of the spot light. Only the parts of it that changed are drawn anew.
#pragma once

#include "platform/render/BatchDrawer.h"

#include <vector>

namespace vorbel {

// What is drawn into one part of the map.
struct ShadowRegion {
    PixelRect part; // texels
    BatchPlan::Range solid;
    BatchPlan::Range cutOut;
};

class ShadowMap {
public:
    // How many texels the map has along an edge for that light: one without a spot light that casts shadows.
    [[nodiscard]] static int sizeFor(const std::optional<SpotLight>& spot);

    // Makes the map that large; its content is lost when it had another size.
    void resize(QOpenGLExtraFunctions& gl, int size);

    // Draws the regions anew; the drawer has begun with the plan. Changes framebuffer, viewport, scissor
    // rectangle and view.
    void draw(QOpenGLExtraFunctions& gl, std::span<const ShadowRegion> regions, const BatchPlan& plan,
              BatchDrawer& drawer);

    // For ShaderProgram's shadow unit.
    void bind(QOpenGLExtraFunctions& gl) const;

private:
    GlObject texture_;
    GlObject framebuffer_;
    int size_ = 0; // texels along an edge
};

} // namespace vorbel
