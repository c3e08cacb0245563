// The finished picture, kept from frame to frame in the encoding of the screen, and upside down: windows keep
// their pictures so, and the copy into them is then a plain one.
#pragma once

#include "platform/render/Regions.h"
#include "platform/render/ShaderProgram.h"
#include "platform/render/TextureTarget.h"

#include <memory>
#include <span>

namespace vorbel {

class Layer {
public:
    // None when a shader fails; `error` then says why.
    [[nodiscard]] static std::unique_ptr<Layer> create(std::string& error);

    // True when the size was another one; the content is then lost.
    bool resize(QOpenGLExtraFunctions& gl, int width, int height);

    // Encodes pieces of linear light from the texture of a sheet and puts them in place. Changes framebuffer
    // and viewport; depth, stencil and scissor test must be off.
    void put(QOpenGLExtraFunctions& gl, std::span<const Piece> pieces, GLuint sheet);

    // Copies all of it into the framebuffer; the same tests must be off.
    void show(QOpenGLExtraFunctions& gl, GLuint framebuffer);

private:
    Layer(ShaderProgram encode, QOpenGLExtraFunctions& gl);
    void showByShader(QOpenGLExtraFunctions& gl); // the only way into a multisampled framebuffer

    ShaderProgram encode_;
    std::optional<ShaderProgram> copy_; // few windows need it: made when it is first used
    GlObject pieces_;
    GlObject pieceArray_;
    GlObject emptyArray_; // the triangle over the whole picture makes its corners in the shader
    TextureTarget picture_;
    int width_ = 0;
    int height_ = 0;
    std::vector<float> places_;
};

} // namespace vorbel
