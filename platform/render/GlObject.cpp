#include "platform/render/GlObject.h"

namespace vorbel {

GlObject newBuffer(QOpenGLExtraFunctions& gl) {
    GLuint id = 0;
    gl.glGenBuffers(1, &id);
    return {id, [](QOpenGLExtraFunctions& functions, GLuint old) { functions.glDeleteBuffers(1, &old); }};
}

GlObject newTexture(QOpenGLExtraFunctions& gl) {
    GLuint id = 0;
    gl.glGenTextures(1, &id);
    return {id, [](QOpenGLExtraFunctions& functions, GLuint old) { functions.glDeleteTextures(1, &old); }};
}

GlObject newVertexArray(QOpenGLExtraFunctions& gl) {
    GLuint id = 0;
    gl.glGenVertexArrays(1, &id);
    return {id,
            [](QOpenGLExtraFunctions& functions, GLuint old) { functions.glDeleteVertexArrays(1, &old); }};
}

GlObject newFramebuffer(QOpenGLExtraFunctions& gl) {
    GLuint id = 0;
    gl.glGenFramebuffers(1, &id);
    return {id,
            [](QOpenGLExtraFunctions& functions, GLuint old) { functions.glDeleteFramebuffers(1, &old); }};
}

GlObject newRenderbuffer(QOpenGLExtraFunctions& gl) {
    GLuint id = 0;
    gl.glGenRenderbuffers(1, &id);
    return {id,
            [](QOpenGLExtraFunctions& functions, GLuint old) { functions.glDeleteRenderbuffers(1, &old); }};
}

} // namespace vorbel
