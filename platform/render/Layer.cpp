#include "platform/render/Layer.h"

#include "platform/render/Shaders.h"

namespace vorbel {

Layer::Layer(QOpenGLExtraFunctions& gl) : emptyArray_(newVertexArray(gl)) {}

bool Layer::resize(QOpenGLExtraFunctions& gl, int width, int height) {
    if (width == width_ && height == height_) {
        return false;
    }
    width_ = width;
    height_ = height;
    // Without a size in its format a texture is kept in the order that is named. That of most windows lets a
    // driver without graphics hardware copy lines of bytes instead of shading each pixel.
    const GLenum order = QOpenGLContext::currentContext()->isOpenGLES() ? GL_RGBA : GL_BGRA;
    picture_ = TextureTarget::create(gl, GL_RGBA, order, GL_UNSIGNED_BYTE, width, height);
    return true;
}

void Layer::beginDrawing(QOpenGLExtraFunctions& gl) const {
    gl.glBindFramebuffer(GL_FRAMEBUFFER, picture_.framebuffer.id());
    gl.glViewport(0, 0, width_, height_);
}

void Layer::show(QOpenGLExtraFunctions& gl, GLuint framebuffer) {
    gl.glBindFramebuffer(GL_FRAMEBUFFER, framebuffer);
    gl.glViewport(0, 0, width_, height_);
    GLint samples = 0;
    gl.glGetIntegerv(GL_SAMPLES, &samples);
    if (samples > 0) {
        showByShader(gl);
        return;
    }
    gl.glBindFramebuffer(GL_READ_FRAMEBUFFER, picture_.framebuffer.id());
    gl.glBlitFramebuffer(0, height_, width_, 0, 0, 0, width_, height_, GL_COLOR_BUFFER_BIT, GL_NEAREST);
    gl.glBindFramebuffer(GL_READ_FRAMEBUFFER, framebuffer);
}

void Layer::showByShader(QOpenGLExtraFunctions& gl) {
    if (!copy_) {
        std::string error; // there is nothing in this shader that a driver could refuse
        copy_ = ShaderProgram::create(shaders::screenVertex, shaders::copyFragment, "", error);
    }
    gl.glDisable(GL_CULL_FACE);
    gl.glActiveTexture(GL_TEXTURE0 + binding::pictureUnit);
    gl.glBindTexture(GL_TEXTURE_2D, picture_.texture.id());
    copy_.value().use(gl);
    gl.glBindVertexArray(emptyArray_.id());
    gl.glDrawArrays(GL_TRIANGLES, 0, 3);
}

} // namespace vorbel
