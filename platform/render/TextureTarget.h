// A texture to draw into, which is then read texel by texel.
#pragma once

#include "platform/render/GlObject.h"

namespace vorbel {

struct TextureTarget {
    GlObject texture;
    GlObject framebuffer; // with the texture as its colour

    // Four components of that type, GL_UNSIGNED_BYTE for GL_RGBA8 and so on; the content is undefined. Leaves
    // the framebuffer, and the texture in the unit for pictures, bound.
    [[nodiscard]] static TextureTarget create(QOpenGLExtraFunctions& gl, GLint format, GLenum componentType,
                                              int width, int height);
};

} // namespace vorbel
