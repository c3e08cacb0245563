// The multisampled pictures that regions of the stage are drawn into: in linear light, the same as if the spot
// light reached nothing, and how near what is seen is to the camera: half a metre by its depth, at most 1, as
// the sum of two numbers.
#pragma once

#include "platform/render/PixelRect.h"
#include "platform/render/TextureTarget.h"

#include <array>

#include <glm/vec4.hpp>

namespace vorbel {

class Sheet {
public:
    // False when the driver cannot have such a picture; the sheet is then empty. The content is undefined.
    bool resize(QOpenGLExtraFunctions& gl, int width, int height);

    [[nodiscard]] int width() const { return width_; } // pixels
    [[nodiscard]] int height() const { return height_; }

    // Makes it the framebuffer to draw into and clears that part, to the background and the greatest depth.
    void beginDrawing(QOpenGLExtraFunctions& gl, const PixelRect& part, const glm::vec4& background) const;

    // Averages the samples of each pixel of that part. Changes the framebuffers; the scissor test must be off.
    void resolve(QOpenGLExtraFunctions& gl, const PixelRect& part) const;

    // What was resolved, for ShaderProgram's units of picture, shaded picture and nearness.
    void bind(QOpenGLExtraFunctions& gl) const;

private:
    int width_ = 0;
    int height_ = 0;
    std::array<GlObject, 3> colors_;
    GlObject depth_;
    GlObject framebuffer_;
    std::array<TextureTarget, 3> resolved_;
};

} // namespace vorbel
