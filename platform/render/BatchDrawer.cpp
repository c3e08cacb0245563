#include "platform/render/BatchDrawer.h"

#include "platform/render/Shaders.h"

namespace vorbel {

namespace {

constexpr std::array<const char*, passCount> passDefines = {"DEPTH", "MIRROR", "", "FLOOR"};
constexpr std::array<const char*, 4> lookDefines = {"", " PICTURE", " UNLIT", " PICTURE UNLIT"};

template <typename Data>
void refill(QOpenGLExtraFunctions& gl, GLenum target, const GlObject& buffer, const Data* data,
            std::size_t count) {
    gl.glBindBuffer(target, buffer.id());
    gl.glBufferData(target, static_cast<GLsizeiptr>(count * sizeof(Data)), data, GL_STREAM_DRAW);
    gl.glBindBuffer(target, 0);
}

} // namespace

BatchDrawer::BatchDrawer(Pictures& pictures)
    : pictures_(pictures),
      instances_(newBuffer(currentGl())),
      views_{newBuffer(currentGl()), newBuffer(currentGl()), newBuffer(currentGl())},
      lights_(newBuffer(currentGl())) {}

const ShaderProgram* BatchDrawer::findProgram(Pass pass, const Look& look) {
    const bool unlit = look.unlit && pass != Pass::depth; // depth is the same with and without light
    const std::size_t index = (look.picture.empty() ? 0U : 1U) + (unlit ? 2U : 0U);
    Variant& variant = variants_[static_cast<std::size_t>(pass) * looks + index];
    if (!std::exchange(variant.tried, true)) {
        const std::string defines =
            std::string(passDefines[static_cast<std::size_t>(pass)]) + lookDefines[index];
        variant.program =
            ShaderProgram::create(shaders::surfaceVertex, shaders::surfaceFragment, defines, problem_);
    }
    return variant.program ? &*variant.program : nullptr;
}

void BatchDrawer::begin(QOpenGLExtraFunctions& gl, std::span<const Instance> instances, const Views& views,
                        const LightUniforms& lights) {
    refill(gl, GL_ARRAY_BUFFER, instances_, instances.data(), instances.size());
    for (std::size_t i = 0; i < views.size(); ++i) {
        refill(gl, GL_UNIFORM_BUFFER, views_[i], &views[i], 1);
    }
    refill(gl, GL_UNIFORM_BUFFER, lights_, &lights, 1);
    bindLights(gl);
}

void BatchDrawer::bindLights(QOpenGLExtraFunctions& gl) {
    gl.glBindBufferBase(GL_UNIFORM_BUFFER, binding::lightBlock, lights_.id());
}

void BatchDrawer::setView(QOpenGLExtraFunctions& gl, Eye eye) {
    gl.glBindBufferBase(GL_UNIFORM_BUFFER, binding::viewBlock, views_[static_cast<std::size_t>(eye)].id());
}

void BatchDrawer::draw(QOpenGLExtraFunctions& gl, Pass pass, std::span<const Batch> batches) {
    gl.glActiveTexture(GL_TEXTURE0 + binding::pictureUnit);
    for (const Batch& batch : batches) {
        const Look& look = *batch.look;
        const ShaderProgram* program = findProgram(pass, look);
        if (program == nullptr) {
            continue;
        }
        if (!look.picture.empty()) {
            gl.glBindTexture(GL_TEXTURE_2D, pictures_.find(gl, look.picture));
        }
        look.doubleSided ? gl.glDisable(GL_CULL_FACE) : gl.glEnable(GL_CULL_FACE);
        program->use(gl);
        meshes_.draw(gl, batch, instances_.id());
    }
}

} // namespace vorbel
