// The picture without balls, in the encoding of the screen: as the spot light shows it, and as if no surface
// were reached by it. Between both lies the shadow of a ball. Upside down, like the layer.
#pragma once

#include "platform/render/Regions.h"
#include "platform/render/ShaderProgram.h"
#include "platform/render/Sheet.h"

#include <memory>
#include <span>
#include <vector>

namespace vorbel {

class Stage {
public:
    // None when a shader fails; `error` then says why.
    [[nodiscard]] static std::unique_ptr<Stage> create(std::string& error);

    // The content is lost when the size was another one.
    void resize(QOpenGLExtraFunctions& gl, int width, int height);

    // Encodes pieces of linear light from a sheet and puts them in place. Changes framebuffer and viewport;
    // depth, stencil and scissor test must be off.
    void put(QOpenGLExtraFunctions& gl, std::span<const Piece> pieces, const Sheet& sheet);

    // For ShaderProgram's units of the picture and of the shaded one. Their alphas are the higher and the
    // lower part of the nearness: half a metre by the depth.
    void bind(QOpenGLExtraFunctions& gl) const;

private:
    Stage(ShaderProgram encode, QOpenGLExtraFunctions& gl);

    ShaderProgram encode_;
    GlObject pieces_;
    GlObject pieceArray_;
    GlObject lit_;
    GlObject shaded_;
    GlObject framebuffer_;
    int width_ = 0;
    int height_ = 0;
    std::vector<float> places_;
};

} // namespace vorbel
