#include "platform/render/BatchDrawer.h"

#include "platform/render/Shaders.h"

namespace vorbel {

namespace {

constexpr std::array<const char*, passCount> passDefines = {"DEPTH", "MIRROR", "", "FLOOR"};
constexpr std::array<const char*, 4> lookDefines = {"", " PICTURE", " UNLIT", " PICTURE UNLIT"};

std::size_t programIndex(Pass pass, bool picture, bool unlit) {
    const std::size_t look = (picture ? 1U : 0U) + (unlit && pass != Pass::depth ? 2U : 0U);
    return static_cast<std::size_t>(pass) * lookDefines.size() + look;
}

template <typename Data>
void refill(QOpenGLExtraFunctions& gl, GLenum target, const GlObject& buffer, const Data* data,
            std::size_t count) {
    gl.glBindBuffer(target, buffer.id());
    gl.glBufferData(target, static_cast<GLsizeiptr>(count * sizeof(Data)), data, GL_STREAM_DRAW);
    gl.glBindBuffer(target, 0);
}

} // namespace

BatchDrawer::BatchDrawer(Pictures& pictures, QOpenGLExtraFunctions& gl)
    : pictures_(pictures),
      instances_(newBuffer(gl)),
      views_{newBuffer(gl), newBuffer(gl), newBuffer(gl)},
      lights_(newBuffer(gl)) {}

std::unique_ptr<BatchDrawer> BatchDrawer::create(Pictures& pictures, std::string& error) {
    std::unique_ptr<BatchDrawer> drawer(new BatchDrawer(pictures, currentGl()));
    return drawer->compilePrograms(error) ? std::move(drawer) : nullptr;
}

bool BatchDrawer::compilePrograms(std::string& error) {
    for (std::size_t pass = 0; pass < passCount; ++pass) {
        for (std::size_t look = 0; look < looks; ++look) {
            if (static_cast<Pass>(pass) == Pass::depth && look >= 2) {
                continue; // depth is the same with and without light
            }
            const std::string defines = std::string(passDefines[pass]) + lookDefines[look];
            auto& program = programs_[pass * looks + look];
            program = ShaderProgram::create(shaders::surfaceVertex, shaders::surfaceFragment, defines, error);
            if (!program) {
                return false;
            }
        }
    }
    return true;
}

void BatchDrawer::begin(QOpenGLExtraFunctions& gl, std::span<const Instance> instances, const Views& views,
                        const LightUniforms& lights) {
    refill(gl, GL_ARRAY_BUFFER, instances_, instances.data(), instances.size());
    for (std::size_t i = 0; i < views.size(); ++i) {
        refill(gl, GL_UNIFORM_BUFFER, views_[i], &views[i], 1);
    }
    refill(gl, GL_UNIFORM_BUFFER, lights_, &lights, 1);
    gl.glBindBufferBase(GL_UNIFORM_BUFFER, binding::lightBlock, lights_.id());
}

void BatchDrawer::setView(QOpenGLExtraFunctions& gl, Eye eye) {
    gl.glBindBufferBase(GL_UNIFORM_BUFFER, binding::viewBlock, views_[static_cast<std::size_t>(eye)].id());
}

void BatchDrawer::draw(QOpenGLExtraFunctions& gl, Pass pass, std::span<const Batch> batches) {
    gl.glActiveTexture(GL_TEXTURE0 + binding::pictureUnit);
    for (const Batch& batch : batches) {
        const Look& look = *batch.look;
        const bool picture = !look.picture.empty();
        if (picture) {
            gl.glBindTexture(GL_TEXTURE_2D, pictures_.find(gl, look.picture));
        }
        look.doubleSided ? gl.glDisable(GL_CULL_FACE) : gl.glEnable(GL_CULL_FACE);
        programs_[programIndex(pass, picture, look.unlit)]->use(gl);
        meshes_.draw(gl, batch, instances_.id());
    }
}

} // namespace vorbel
