#include "platform/render/ContextState.h"

#include "platform/render/ShaderProgram.h"

#include <QOpenGLContext>
#include <QSurfaceFormat>

#include <initializer_list>
#include <utility>

namespace vorbel {

std::string contextProblem() {
    const QOpenGLContext* context = QOpenGLContext::currentContext();
    if (context == nullptr) {
        return "OpenGL is not available.";
    }
    const bool embedded = context->isOpenGLES();
    const std::pair<int, int> needed = embedded ? std::pair(3, 0) : std::pair(3, 3);
    const std::pair<int, int> version(context->format().majorVersion(), context->format().minorVersion());
    if (version >= needed) {
        return {};
    }
    return "OpenGL " + std::string(embedded ? "ES 3.0" : "3.3") + " is needed, but there is only " +
           std::to_string(version.first) + "." + std::to_string(version.second) + ".";
}

void setDefaults(QOpenGLExtraFunctions& gl) {
    for (const GLenum capability :
         std::initializer_list<GLenum>{GL_BLEND, GL_STENCIL_TEST, GL_SAMPLE_ALPHA_TO_COVERAGE}) {
        gl.glDisable(capability);
    }
    gl.glEnable(GL_DEPTH_TEST);
    gl.glEnable(GL_SCISSOR_TEST);
    gl.glDepthFunc(GL_LEQUAL);
    gl.glDepthMask(GL_TRUE);
    gl.glDepthRangef(0, 1);
    gl.glClearDepthf(1);
    gl.glClearStencil(0);
    gl.glStencilMask(0xFF);
    gl.glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    gl.glFrontFace(GL_CCW);
    gl.glCullFace(GL_BACK);
    gl.glBlendEquation(GL_FUNC_ADD);
    gl.glBindSampler(binding::pictureUnit, 0);
    gl.glBindSampler(binding::shadowUnit, 0);
    gl.glBindSampler(binding::shadedUnit, 0);
    gl.glBindSampler(binding::nearnessUnit, 0);
}

void releaseBindings(QOpenGLExtraFunctions& gl) {
    gl.glDisable(GL_CULL_FACE);
    gl.glUseProgram(0);
    gl.glBindVertexArray(0);
    gl.glBindBuffer(GL_ARRAY_BUFFER, 0);
    gl.glBindBufferBase(GL_UNIFORM_BUFFER, binding::viewBlock, 0);
    gl.glBindBufferBase(GL_UNIFORM_BUFFER, binding::lightBlock, 0);
    gl.glBindBufferBase(GL_UNIFORM_BUFFER, binding::ballBlock, 0);
    for (const GLint unit :
         {binding::nearnessUnit, binding::shadedUnit, binding::shadowUnit, binding::pictureUnit}) {
        gl.glActiveTexture(GL_TEXTURE0 + static_cast<GLenum>(unit));
        gl.glBindTexture(GL_TEXTURE_2D, 0);
    }
}

} // namespace vorbel
