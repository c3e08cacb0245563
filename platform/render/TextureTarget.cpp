#include "platform/render/TextureTarget.h"

#include "platform/render/ShaderProgram.h"

namespace vorbel {

TextureTarget TextureTarget::create(QOpenGLExtraFunctions& gl, GLint format, GLenum order,
                                    GLenum componentType, int width, int height) {
    TextureTarget target{newTexture(gl), newFramebuffer(gl)};
    gl.glActiveTexture(GL_TEXTURE0 + binding::pictureUnit);
    gl.glBindTexture(GL_TEXTURE_2D, target.texture.id());
    gl.glTexImage2D(GL_TEXTURE_2D, 0, format, width, height, 0, order, componentType, nullptr);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    gl.glBindFramebuffer(GL_FRAMEBUFFER, target.framebuffer.id());
    gl.glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, target.texture.id(), 0);
    return target;
}

} // namespace vorbel
