#include "platform/render/Stage.h"

#include "platform/render/Shaders.h"

#include <cstdint>

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

// Four components of 8 bits a texel.
GlObject makeTexture(QOpenGLExtraFunctions& gl, int width, int height, GLenum attachment) {
    GlObject texture = newTexture(gl);
    gl.glActiveTexture(GL_TEXTURE0 + binding::pictureUnit);
    gl.glBindTexture(GL_TEXTURE_2D, texture.id());
    gl.glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA8, width, height, 0, GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    gl.glFramebufferTexture2D(GL_FRAMEBUFFER, attachment, GL_TEXTURE_2D, texture.id(), 0);
    return texture;
}

} // namespace

std::unique_ptr<Stage> Stage::create(std::string& error) {
    const std::string fragment = std::string(shaders::encoding).append(shaders::encodeFragment);
    auto encode = ShaderProgram::create(shaders::pieceVertex, fragment, "", error);
    return encode ? std::unique_ptr<Stage>(new Stage(std::move(*encode), currentGl())) : nullptr;
}

Stage::Stage(ShaderProgram encode, QOpenGLExtraFunctions& gl)
    : encode_(std::move(encode)), pieces_(newBuffer(gl)), pieceArray_(newVertexArray(gl)) {
    gl.glBindVertexArray(pieceArray_.id());
    gl.glBindBuffer(GL_ARRAY_BUFFER, pieces_.id());
    setAttribute(gl, 0, partFloats, 0);
    setAttribute(gl, 1, offsetFloats, partFloats);
    gl.glBindVertexArray(0);
}

void Stage::resize(QOpenGLExtraFunctions& gl, int width, int height) {
    if (width == width_ && height == height_) {
        return;
    }
    width_ = width;
    height_ = height;
    framebuffer_ = newFramebuffer(gl);
    gl.glBindFramebuffer(GL_FRAMEBUFFER, framebuffer_.id());
    lit_ = makeTexture(gl, width, height, GL_COLOR_ATTACHMENT0);
    shaded_ = makeTexture(gl, width, height, GL_COLOR_ATTACHMENT1);
    const GLenum both[] = {GL_COLOR_ATTACHMENT0, GL_COLOR_ATTACHMENT1};
    gl.glDrawBuffers(2, both);
}

void Stage::put(QOpenGLExtraFunctions& gl, std::span<const Piece> pieces, const Sheet& sheet) {
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
    gl.glBindFramebuffer(GL_FRAMEBUFFER, framebuffer_.id());
    gl.glViewport(0, 0, width_, height_);
    gl.glDisable(GL_CULL_FACE);
    sheet.bind(gl);
    gl.glBindBuffer(GL_ARRAY_BUFFER, pieces_.id());
    gl.glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(places_.size() * sizeof(float)), places_.data(),
                    GL_STREAM_DRAW);
    encode_.use(gl);
    gl.glBindVertexArray(pieceArray_.id());
    gl.glDrawArraysInstanced(GL_TRIANGLE_STRIP, 0, 4, static_cast<GLsizei>(pieces.size()));
}

void Stage::bind(QOpenGLExtraFunctions& gl) const {
    gl.glActiveTexture(GL_TEXTURE0 + binding::shadedUnit);
    gl.glBindTexture(GL_TEXTURE_2D, shaded_.id());
    gl.glActiveTexture(GL_TEXTURE0 + binding::pictureUnit);
    gl.glBindTexture(GL_TEXTURE_2D, lit_.id());
}

} // namespace vorbel
