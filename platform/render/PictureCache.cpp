#include "platform/render/PictureCache.h"

#include "platform/render/ColorSpace.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include <QImage>

namespace vorbel {

namespace {

// Multiplies the light, not its encoding, by alpha; only the pixels of the outline cost time.
void multiplyByAlpha(QImage& image) {
    std::array<float, 256> light{};
    for (std::size_t i = 0; i < light.size(); ++i) {
        light[i] = linearLight(static_cast<float>(i) / 255);
    }
    for (int y = 0; y < image.height(); ++y) {
        uchar* pixel = image.scanLine(y);
        for (int x = 0; x < image.width(); ++x, pixel += 4) {
            for (int channel = 0; channel < 3 && pixel[3] < 255; ++channel) {
                const float dimmed = light[pixel[channel]] * static_cast<float>(pixel[3]) / 255;
                pixel[channel] = static_cast<uchar>(pixel[3] == 0 ? 0 : 255 * encodedLight(dimmed) + 0.5F);
            }
        }
    }
}

QImage loadPicture(const Resources& resources, std::string_view name) {
    QImage image;
    if (const auto file = resources.find(name, "png")) {
        image.load(QString::fromStdString(file->string()));
    }
    if (image.isNull()) {
        image = QImage(1, 1, QImage::Format_RGBA8888);
        image.fill(Qt::white);
    }
    image.convertTo(QImage::Format_RGBA8888);
    multiplyByAlpha(image);
    return image;
}

} // namespace

GLuint PictureCache::find(QOpenGLExtraFunctions& gl, std::string_view name) {
    if (const auto known = textures_.find(name); known != textures_.end()) {
        return known->second.id();
    }
    const QImage image = loadPicture(resources_, name);
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
