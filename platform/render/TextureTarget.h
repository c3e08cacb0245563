// A texture to draw into, which is then read texel by texel.
#pragma once

#include "platform/render/GlObject.h"

namespace vorbel {

struct TextureTarget {
    GlObject texture;
    GlObject framebuffer; // with the texture as its colour

    // Four components a texel, kept in the order and of the type that the driver finds fastest to fill with
    // such data: GL_RGBA and GL_HALF_FLOAT for GL_RGBA16F and so on. The content is undefined. Leaves the
    // framebuffer, and the texture in the unit for pictures, bound.
    [[nodiscard]] static TextureTarget create(QOpenGLExtraFunctions& gl, GLint format, GLenum order,
                                              GLenum componentType, int width, int height);
};

} // namespace vorbel
