// Draws batches with the shaders that they need.
#pragma once

#include "platform/render/MeshCache.h"
#include "platform/render/PictureCache.h"
#include "platform/render/ShaderProgram.h"
#include "platform/render/Uniforms.h"

#include <array>
#include <memory>
#include <span>

namespace vorbel {

enum class Pass { depth, mirror, scene, floor };
inline constexpr std::size_t passCount = 4;

enum class Eye { camera, mirror, light };
using Views = std::array<ViewUniforms, 3>; // in the order of the eyes

class BatchDrawer {
public:
    // Uses the current context. Keeps a reference to `pictures`.
    explicit BatchDrawer(Pictures& pictures);

    // What all draws until the next call take their instances, their views and their light from.
    void begin(QOpenGLExtraFunctions& gl, std::span<const Instance> instances, const Views& views,
               const LightUniforms& lights);
    void bindLights(QOpenGLExtraFunctions& gl); // those of the last begin
    void setView(QOpenGLExtraFunctions& gl, Eye eye);
    void draw(QOpenGLExtraFunctions& gl, Pass pass, std::span<const Batch> batches);

    // Why some batches were left out: the driver refuses their shader. Empty when all were drawn.
    [[nodiscard]] const std::string& problem() const { return problem_; }

private:
    const ShaderProgram* findProgram(Pass pass, const Look& look);

    static constexpr std::size_t looks = 4; // with a picture or without, unlit or not
    struct Variant {
        bool tried = false;
        std::optional<ShaderProgram> program;
    };
    std::array<Variant, passCount * looks> variants_; // each is compiled when it is first needed
    std::string problem_;
    MeshCache meshes_;
    PictureCache pictures_;
    GlObject instances_;
    std::array<GlObject, 3> views_;
    GlObject lights_;
};

} // namespace vorbel
