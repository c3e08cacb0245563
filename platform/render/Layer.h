// The finished picture, kept from frame to frame in the encoding of the screen, and upside down: windows keep
// their pictures so, and the copy into them is then a plain one.
#pragma once

#include "platform/render/ShaderProgram.h"
#include "platform/render/TextureTarget.h"

#include <optional>

namespace vorbel {

class Layer {
public:
    explicit Layer(QOpenGLExtraFunctions& gl);

    // True when the size was another one; the content is then lost.
    bool resize(QOpenGLExtraFunctions& gl, int width, int height);

    void beginDrawing(QOpenGLExtraFunctions& gl) const; // makes it the framebuffer to draw into

    // Copies all of it into the framebuffer; the same tests must be off.
    void show(QOpenGLExtraFunctions& gl, GLuint framebuffer);

private:
    void showByShader(QOpenGLExtraFunctions& gl); // the only way into a multisampled framebuffer

    std::optional<ShaderProgram> copy_; // few windows need it: made when it is first used
    GlObject emptyArray_;               // the triangle over the whole picture makes its corners in the shader
    TextureTarget picture_;
    int width_ = 0;
    int height_ = 0;
};

} // namespace vorbel
