#include "platform/render/Sheet.h"

#include "platform/render/ShaderProgram.h"

#include <algorithm>

namespace vorbel {

namespace {

constexpr GLint sampleCount = 4;
struct Format {
    GLint format;
    GLenum order;
};
constexpr std::array<Format, 3> formats = {{{GL_RGBA16F, GL_RGBA}, {GL_RGBA16F, GL_RGBA}, {GL_RG16F, GL_RG}}};
constexpr std::array<GLenum, 3> attachments = {GL_COLOR_ATTACHMENT0, GL_COLOR_ATTACHMENT1,
                                               GL_COLOR_ATTACHMENT2};

GlObject makeBuffer(QOpenGLExtraFunctions& gl, GLsizei samples, GLenum format, int width, int height,
                    GLenum attachment) {
    GlObject buffer = newRenderbuffer(gl);
    gl.glBindRenderbuffer(GL_RENDERBUFFER, buffer.id());
    gl.glRenderbufferStorageMultisample(GL_RENDERBUFFER, samples, format, width, height);
    gl.glBindRenderbuffer(GL_RENDERBUFFER, 0);
    gl.glFramebufferRenderbuffer(GL_FRAMEBUFFER, attachment, GL_RENDERBUFFER, buffer.id());
    return buffer;
}

bool isComplete(QOpenGLExtraFunctions& gl) {
    return gl.glCheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;
}

} // namespace

bool Sheet::resize(QOpenGLExtraFunctions& gl, int width, int height) {
    if (width == width_ && height == height_) {
        return true;
    }
    *this = {};
    framebuffer_ = newFramebuffer(gl);
    GLint most = 0;
    gl.glGetIntegerv(GL_MAX_SAMPLES, &most);
    const GLint samples = std::min(sampleCount, most);
    gl.glBindFramebuffer(GL_FRAMEBUFFER, framebuffer_.id());
    for (std::size_t i = 0; i < formats.size(); ++i) {
        const auto format = static_cast<GLenum>(formats[i].format);
        colors_[i] = makeBuffer(gl, samples, format, width, height, attachments[i]);
    }
    depth_ = makeBuffer(gl, samples, GL_DEPTH24_STENCIL8, width, height, GL_DEPTH_STENCIL_ATTACHMENT);
    gl.glDrawBuffers(static_cast<GLsizei>(attachments.size()), attachments.data());
    bool complete = isComplete(gl);
    for (std::size_t i = 0; i < formats.size(); ++i) {
        resolved_[i] =
            TextureTarget::create(gl, formats[i].format, formats[i].order, GL_HALF_FLOAT, width, height);
        complete = complete && isComplete(gl);
    }
    if (!complete) {
        *this = {};
        return false;
    }
    width_ = width;
    height_ = height;
    return true;
}

void Sheet::beginDrawing(QOpenGLExtraFunctions& gl, const PixelRect& part,
                         const glm::vec4& background) const {
    gl.glBindFramebuffer(GL_FRAMEBUFFER, framebuffer_.id());
    gl.glScissor(part.left, part.bottom, part.width(), part.height());
    const std::array<GLfloat, 4> farthest{};
    const std::array<GLfloat, 4> color = {background.r, background.g, background.b, 1};
    gl.glClearBufferfv(GL_COLOR, 0, color.data());
    gl.glClearBufferfv(GL_COLOR, 1, color.data());
    gl.glClearBufferfv(GL_COLOR, 2, farthest.data());
    gl.glClear(GL_DEPTH_BUFFER_BIT | GL_STENCIL_BUFFER_BIT);
}

void Sheet::resolve(QOpenGLExtraFunctions& gl, const PixelRect& part) const {
    gl.glBindFramebuffer(GL_READ_FRAMEBUFFER, framebuffer_.id());
    for (std::size_t i = 0; i < resolved_.size(); ++i) {
        gl.glReadBuffer(attachments[i]);
        gl.glBindFramebuffer(GL_DRAW_FRAMEBUFFER, resolved_[i].framebuffer.id());
        gl.glBlitFramebuffer(part.left, part.bottom, part.right, part.top, part.left, part.bottom, part.right,
                             part.top, GL_COLOR_BUFFER_BIT, GL_NEAREST);
    }
}

void Sheet::bind(QOpenGLExtraFunctions& gl) const {
    constexpr std::array<GLint, 3> units = {binding::pictureUnit, binding::shadedUnit, binding::nearnessUnit};
    for (std::size_t i = 0; i < resolved_.size(); ++i) {
        gl.glActiveTexture(GL_TEXTURE0 + static_cast<GLenum>(units[i]));
        gl.glBindTexture(GL_TEXTURE_2D, resolved_[i].texture.id());
    }
}

} // namespace vorbel
