#include "platform/render/Sheet.h"

#include <algorithm>

namespace vorbel {

namespace {

constexpr GLint sampleCount = 4;
constexpr GLenum colorFormat = GL_RGBA16F;

bool isComplete(QOpenGLExtraFunctions& gl) {
    return gl.glCheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;
}

} // namespace

bool Sheet::resize(QOpenGLExtraFunctions& gl, int width, int height) {
    if (width == width_ && height == height_) {
        return true;
    }
    *this = {};
    color_ = newRenderbuffer(gl);
    depth_ = newRenderbuffer(gl);
    framebuffer_ = newFramebuffer(gl);

    GLint most = 0;
    gl.glGetIntegerv(GL_MAX_SAMPLES, &most);
    const GLint samples = std::min(sampleCount, most);
    gl.glBindRenderbuffer(GL_RENDERBUFFER, color_.id());
    gl.glRenderbufferStorageMultisample(GL_RENDERBUFFER, samples, colorFormat, width, height);
    gl.glBindRenderbuffer(GL_RENDERBUFFER, depth_.id());
    gl.glRenderbufferStorageMultisample(GL_RENDERBUFFER, samples, GL_DEPTH24_STENCIL8, width, height);
    gl.glBindRenderbuffer(GL_RENDERBUFFER, 0);
    gl.glBindFramebuffer(GL_FRAMEBUFFER, framebuffer_.id());
    gl.glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, color_.id());
    gl.glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_DEPTH_STENCIL_ATTACHMENT, GL_RENDERBUFFER, depth_.id());
    const bool complete = isComplete(gl);

    resolved_ = TextureTarget::create(gl, colorFormat, GL_RGBA, GL_HALF_FLOAT, width, height);
    if (!complete || !isComplete(gl)) {
        *this = {};
        return false;
    }
    width_ = width;
    height_ = height;
    return true;
}

void Sheet::beginDrawing(QOpenGLExtraFunctions& gl) const {
    gl.glBindFramebuffer(GL_FRAMEBUFFER, framebuffer_.id());
}

GLuint Sheet::resolve(QOpenGLExtraFunctions& gl, const PixelRect& part) const {
    gl.glBindFramebuffer(GL_READ_FRAMEBUFFER, framebuffer_.id());
    gl.glBindFramebuffer(GL_DRAW_FRAMEBUFFER, resolved_.framebuffer.id());
    gl.glBlitFramebuffer(part.left, part.bottom, part.right, part.top, part.left, part.bottom, part.right,
                         part.top, GL_COLOR_BUFFER_BIT, GL_NEAREST);
    return resolved_.texture.id();
}

} // namespace vorbel
