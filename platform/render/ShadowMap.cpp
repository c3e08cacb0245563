#include "platform/render/ShadowMap.h"

namespace vorbel {

int ShadowMap::sizeFor(const std::optional<SpotLight>& spot) {
    return spot && spot->castsShadow ? spot->shadowMapSize : 1;
}

void ShadowMap::resize(QOpenGLExtraFunctions& gl, int size) {
    if (size == size_) {
        return;
    }
    size_ = size;
    texture_ = newTexture(gl);
    framebuffer_ = newFramebuffer(gl);
    gl.glActiveTexture(GL_TEXTURE0 + binding::shadowUnit);
    gl.glBindTexture(GL_TEXTURE_2D, texture_.id());
    // 16 bits over the few metres of the frustum are steps of a tenth of a millimetre.
    gl.glTexImage2D(GL_TEXTURE_2D, 0, GL_DEPTH_COMPONENT16, size, size, 0, GL_DEPTH_COMPONENT,
                    GL_UNSIGNED_SHORT, nullptr);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_COMPARE_MODE, GL_COMPARE_REF_TO_TEXTURE);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_COMPARE_FUNC, GL_LEQUAL);
    gl.glBindFramebuffer(GL_FRAMEBUFFER, framebuffer_.id());
    gl.glFramebufferTexture2D(GL_FRAMEBUFFER, GL_DEPTH_ATTACHMENT, GL_TEXTURE_2D, texture_.id(), 0);
    const GLenum none = GL_NONE;
    gl.glDrawBuffers(1, &none);
    gl.glReadBuffer(GL_NONE);
}

void ShadowMap::draw(QOpenGLExtraFunctions& gl, std::span<const ShadowRegion> regions, const BatchPlan& plan,
                     BatchDrawer& drawer) {
    gl.glBindFramebuffer(GL_FRAMEBUFFER, framebuffer_.id());
    gl.glViewport(0, 0, size_, size_);
    drawer.setView(gl, Eye::light);
    for (const ShadowRegion& region : regions) {
        gl.glScissor(region.part.left, region.part.bottom, region.part.width(), region.part.height());
        gl.glClear(GL_DEPTH_BUFFER_BIT);
        drawer.draw(gl, Pass::depth, plan.batches(region.solid));
        drawer.draw(gl, Pass::depth, plan.batches(region.cutOut));
    }
}

void ShadowMap::bind(QOpenGLExtraFunctions& gl) const {
    gl.glActiveTexture(GL_TEXTURE0 + binding::shadowUnit);
    gl.glBindTexture(GL_TEXTURE_2D, texture_.id());
}

} // namespace vorbel
