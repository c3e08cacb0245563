// The multisampled picture in linear light that regions are drawn into.
#pragma once

#include "platform/render/PixelRect.h"
#include "platform/render/TextureTarget.h"

namespace vorbel {

class Sheet {
public:
    // False when the driver cannot have such a picture; the sheet is then empty. The content is undefined.
    bool resize(QOpenGLExtraFunctions& gl, int width, int height);

    [[nodiscard]] int width() const { return width_; } // pixels
    [[nodiscard]] int height() const { return height_; }

    void beginDrawing(QOpenGLExtraFunctions& gl) const; // makes it the framebuffer to draw into

    // Averages the samples of each pixel of that part; returns the texture with the result. Changes the
    // framebuffers; the scissor test must be off.
    GLuint resolve(QOpenGLExtraFunctions& gl, const PixelRect& part) const;

private:
    int width_ = 0;
    int height_ = 0;
    GlObject color_;
    GlObject depth_;
    GlObject framebuffer_;
    TextureTarget resolved_;
};

} // namespace vorbel
