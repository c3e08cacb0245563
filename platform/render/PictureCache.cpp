#include "platform/render/PictureCache.h"

#include <QOpenGLContext>

#include <algorithm>

namespace vorbel {

namespace {

// How many times longer than wide the part of a picture may be that is averaged for a pixel: what is seen at
// a grazing angle stays crisp. Not every driver can, and few with a limit below this.
float usableAnisotropy(QOpenGLExtraFunctions& gl) {
    constexpr GLenum largestAnisotropy = 0x84FF; // GL_MAX_TEXTURE_MAX_ANISOTROPY_EXT
    constexpr float wanted = 8;
    float largest = 1;
    if (QOpenGLContext::currentContext()->hasExtension("GL_EXT_texture_filter_anisotropic")) {
        gl.glGetFloatv(largestAnisotropy, &largest);
    }
    return std::min(wanted, largest);
}

void setFilters(QOpenGLExtraFunctions& gl) {
    constexpr GLenum anisotropy = 0x84FE; // GL_TEXTURE_MAX_ANISOTROPY_EXT
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_LINEAR);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    if (const float most = usableAnisotropy(gl); most > 1) {
        gl.glTexParameterf(GL_TEXTURE_2D, anisotropy, most);
    }
}

} // namespace

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
    setFilters(gl);
    return textures_.emplace(std::string(name), std::move(texture)).first->second.id();
}

} // namespace vorbel
