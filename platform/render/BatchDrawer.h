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
    // None when a shader fails; `error` then says why.
    [[nodiscard]] static std::unique_ptr<BatchDrawer> create(Pictures& pictures, std::string& error);

    // What all draws until the next call take their instances, their views and their light from.
    void begin(QOpenGLExtraFunctions& gl, std::span<const Instance> instances, const Views& views,
               const LightUniforms& lights);
    void setView(QOpenGLExtraFunctions& gl, Eye eye);
    void draw(QOpenGLExtraFunctions& gl, Pass pass, std::span<const Batch> batches);

private:
    BatchDrawer(Pictures& pictures, QOpenGLExtraFunctions& gl);
    bool compilePrograms(std::string& error);

    static constexpr std::size_t looks = 4; // with a picture or without, unlit or not
    std::array<std::optional<ShaderProgram>, passCount * looks> programs_;
    MeshCache meshes_;
    PictureCache pictures_;
    GlObject instances_;
    std::array<GlObject, 3> views_;
    GlObject lights_;
};

} // namespace vorbel
