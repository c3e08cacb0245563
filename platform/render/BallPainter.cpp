#include "platform/render/BallPainter.h"

#include "platform/render/Shaders.h"

#include <cstddef>
#include <cstdint>

namespace vorbel {

namespace {

struct BallAttribute {
    GLint components;
    std::size_t offset;
};

// In the order of the shaders' locations.
constexpr BallAttribute attributes[] = {
    {4, offsetof(BallQuad, part)},
    {2, offsetof(BallQuad, listed)},
    {4, offsetof(BallQuad, placed)},
    {3, offsetof(BallQuad, orientation)},
    {3, offsetof(BallQuad, orientation) + sizeof(glm::vec3)},
    {3, offsetof(BallQuad, orientation) + 2 * sizeof(glm::vec3)},
    {3, offsetof(BallQuad, diffuse)},
    {3, offsetof(BallQuad, emission)},
    {2, offsetof(BallQuad, look)},
};

std::optional<ShaderProgram> makeProgram(std::string_view vertex, std::string_view fragment,
                                         std::string_view defines, std::string& error) {
    const std::string source = std::string(shaders::encoding).append(shaders::stageReading).append(fragment);
    return ShaderProgram::create(vertex, source, defines, error);
}

} // namespace

std::unique_ptr<BallPainter> BallPainter::create(std::string& error) {
    auto region = makeProgram(shaders::regionVertex, shaders::regionFragment, "", error);
    auto ball = makeProgram(shaders::ballVertex, shaders::ballFragment, "", error);
    if (!region || !ball) {
        return nullptr;
    }
    return std::unique_ptr<BallPainter>(new BallPainter(std::move(*region), std::move(*ball)));
}

BallPainter::BallPainter(ShaderProgram region, ShaderProgram ball)
    : region_(std::move(region)),
      ball_(std::move(ball)),
      uniforms_(newBuffer(currentGl())),
      quads_(newBuffer(currentGl())),
      quadArray_(newVertexArray(currentGl())) {
    QOpenGLExtraFunctions& gl = currentGl();
    gl.glBindVertexArray(quadArray_.id());
    for (GLuint location = 0; location < std::size(attributes); ++location) {
        gl.glEnableVertexAttribArray(location);
        gl.glVertexAttribDivisor(location, 1);
    }
    gl.glBindVertexArray(0);
}

void BallPainter::drawQuads(QOpenGLExtraFunctions& gl, const ShaderProgram& program, std::size_t first,
                            std::size_t count) {
    if (count == 0) {
        return;
    }
    for (GLuint location = 0; location < std::size(attributes); ++location) {
        const BallAttribute& attribute = attributes[location];
        const auto* offset = reinterpret_cast<const void*>( // the call's way to say a number
            static_cast<std::uintptr_t>(first * sizeof(BallQuad) + attribute.offset));
        gl.glVertexAttribPointer(location, attribute.components, GL_FLOAT, GL_FALSE, sizeof(BallQuad),
                                 offset);
    }
    program.use(gl);
    gl.glDrawArraysInstanced(GL_TRIANGLE_STRIP, 0, 4, static_cast<GLsizei>(count));
}

void BallPainter::paint(QOpenGLExtraFunctions& gl, const BallPlan& plan, const Stage& stage) {
    gl.glBindBuffer(GL_UNIFORM_BUFFER, uniforms_.id());
    gl.glBufferData(GL_UNIFORM_BUFFER, sizeof(BallUniforms), &plan.uniforms(), GL_STREAM_DRAW);
    gl.glBindBufferBase(GL_UNIFORM_BUFFER, binding::ballBlock, uniforms_.id());
    gl.glBindVertexArray(quadArray_.id());
    gl.glBindBuffer(GL_ARRAY_BUFFER, quads_.id());
    gl.glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(plan.quads().size() * sizeof(BallQuad)),
                    plan.quads().data(), GL_STREAM_DRAW);
    stage.bind(gl);
    drawQuads(gl, region_, 0, plan.regions());
    if (plan.images() > 0 && !image_) {
        std::string error; // there is nothing in this shader that is not in the other, which the driver took
        image_ = makeProgram(shaders::ballVertex, shaders::ballFragment, "MIRROR", error);
    }
    if (image_) {
        drawQuads(gl, *image_, plan.regions(), plan.images());
    }
    if (plan.adorned() && !adorned_) {
        std::string error; // balls without marks are better than none
        adorned_ =
            makeProgram(shaders::ballVertex,
                        std::string(shaders::ballAdornment).append(shaders::ballFragment), "ADORNED", error);
    }
    gl.glEnable(GL_BLEND);
    gl.glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ZERO, GL_ONE);
    drawQuads(gl, plan.adorned() && adorned_ ? *adorned_ : ball_, plan.regions() + plan.images(),
              plan.balls());
    gl.glDisable(GL_BLEND);
}

} // namespace vorbel
