#include "platform/render/PictureCache.h"

namespace vorbel {

GLuint PictureCache::find(QOpenGLExtraFunctions& gl, std::string_view name) {
    if (const auto known = textures_.find(name); known != textures_.end()) {
        return known->second.id();
    }
    const QImage image = pictures_.read(name);
    GlObject texture = newTexture(gl);
    gl.glBindTexture(GL_TEXTURE_2D, texture.id());
    gl.glTexImage2D(GL_TEXTURE_2D, 0, GL_SRGB8_ALPHA8, image.width(), image.height(), 0, GL_RGBA,
                    GL_UNSIGNED_BYTE, image.constBits());
    gl.glGenerateMipmap(GL_TEXTURE_2D);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_LINEAR);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    return textures_.emplace(std::string(name), std::move(texture)).first->second.id();
}

} // namespace vorbel
