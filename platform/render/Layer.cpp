#include "platform/render/Layer.h"

#include "platform/render/Shaders.h"

namespace vorbel {

namespace {

constexpr int partFloats = 4;   // left, lower, right, upper edge in the layer: fractions of it
constexpr int offsetFloats = 2; // see the shader
constexpr int pieceFloats = partFloats + offsetFloats;

void setAttribute(QOpenGLExtraFunctions& gl, GLuint location, int components, int first) {
    const auto* offset = reinterpret_cast<const void*>( // the call's way to say a number
        static_cast<std::uintptr_t>(first) * sizeof(float));
    gl.glVertexAttribPointer(location, components, GL_FLOAT, GL_FALSE, pieceFloats * sizeof(float), offset);
    gl.glEnableVertexAttribArray(location);
    gl.glVertexAttribDivisor(location, 1);
}

} // namespace

std::unique_ptr<Layer> Layer::create(std::string& error) {
    auto encode = ShaderProgram::create(shaders::pieceVertex, shaders::encodeFragment, "", error);
    return encode ? std::unique_ptr<Layer>(new Layer(std::move(*encode), currentGl())) : nullptr;
}

Layer::Layer(ShaderProgram encode, QOpenGLExtraFunctions& gl)
    : encode_(std::move(encode)),
      pieces_(newBuffer(gl)),
      pieceArray_(newVertexArray(gl)),
      emptyArray_(newVertexArray(gl)) {
    gl.glBindVertexArray(pieceArray_.id());
    gl.glBindBuffer(GL_ARRAY_BUFFER, pieces_.id());
    setAttribute(gl, 0, partFloats, 0);
    setAttribute(gl, 1, offsetFloats, partFloats);
    gl.glBindVertexArray(0);
}

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

void Layer::put(QOpenGLExtraFunctions& gl, std::span<const Piece> pieces, GLuint sheet) {
    places_.clear();
    const auto w = static_cast<float>(width_);
    const auto h = static_cast<float>(height_);
    for (const Piece& piece : pieces) {
        const PixelRect& part = piece.part;
        places_.insert(places_.end(),
                       {static_cast<float>(part.left) / w, 1 - static_cast<float>(part.top) / h,
                        static_cast<float>(part.right) / w, 1 - static_cast<float>(part.bottom) / h,
                        static_cast<float>(piece.left - part.left),
                        static_cast<float>(piece.bottom - part.bottom + height_ - 1)});
    }
    gl.glBindFramebuffer(GL_FRAMEBUFFER, picture_.framebuffer.id());
    gl.glViewport(0, 0, width_, height_);
    gl.glDisable(GL_CULL_FACE);
    gl.glActiveTexture(GL_TEXTURE0 + binding::pictureUnit);
    gl.glBindTexture(GL_TEXTURE_2D, sheet);
    gl.glBindBuffer(GL_ARRAY_BUFFER, pieces_.id());
    gl.glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(places_.size() * sizeof(float)), places_.data(),
                    GL_STREAM_DRAW);
    encode_.use(gl);
    gl.glBindVertexArray(pieceArray_.id());
    gl.glDrawArraysInstanced(GL_TRIANGLE_STRIP, 0, 4, static_cast<GLsizei>(pieces.size()));
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
