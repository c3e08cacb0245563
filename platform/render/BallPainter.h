// Puts parts of the stage, with the balls on it, into the layer.
#pragma once

#include "platform/render/BallPlan.h"
#include "platform/render/ShaderProgram.h"
#include "platform/render/Stage.h"

#include <memory>

namespace vorbel {

class BallPainter {
public:
    // None when a shader fails; `error` then says why.
    [[nodiscard]] static std::unique_ptr<BallPainter> create(std::string& error);

    // Into the current framebuffer. View, light and shadow map are bound; depth, stencil and scissor test and
    // culling are off.
    void paint(QOpenGLExtraFunctions& gl, const BallPlan& plan, const Stage& stage);

private:
    BallPainter(ShaderProgram region, ShaderProgram ball);
    void drawQuads(QOpenGLExtraFunctions& gl, const ShaderProgram& program, std::size_t first,
                   std::size_t count);

    ShaderProgram region_;
    ShaderProgram ball_;
    std::optional<ShaderProgram> image_;   // balls seldom leave the court: made when it is first used
    std::optional<ShaderProgram> adorned_; // for marks and outlines, which are for some players: likewise
    GlObject uniforms_;
    GlObject quads_;
    GlObject quadArray_;
};

} // namespace vorbel
