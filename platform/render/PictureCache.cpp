#include "platform/render/PictureCache.h"

namespace vorbel {

GLuint PictureCache::find(QOpenGLExtraFunctions& gl, std::string_view name) {
    if (const auto known = textures_.find(name); known != textures_.end()) {
        return known->second.id();
    }
    const PictureSizes sizes = pictures_.read(name);
    GlObject texture = newTexture(gl);
    gl.glBindTexture(GL_TEXTURE_2D, texture.id());
    for (GLint level = 0; const QImage& image : sizes) {
        gl.glTexImage2D(GL_TEXTURE_2D, level++, GL_SRGB8_ALPHA8, image.width(), image.height(), 0, GL_RGBA,
                        GL_UNSIGNED_BYTE, image.constBits());
    }
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_LINEAR);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    return textures_.emplace(std::string(name), std::move(texture)).first->second.id();
}

} // namespace vorbel
