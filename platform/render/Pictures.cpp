#include "platform/render/Pictures.h"

#include "platform/render/ColorSpace.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include <QImage>

namespace vorbel {

namespace {

// In pixels: a spectator is a tenth of the picture high, so this does for the largest screens.
constexpr int greatestHeight = 512;

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

QImage loadPicture(const Resources& resources, const std::string& name) {
    QImage image;
    if (const auto file = resources.find(name, "png")) {
        image.load(QString::fromStdString(file->string()));
    }
    if (image.isNull()) {
        image = QImage(1, 1, QImage::Format_RGBA8888);
        image.fill(Qt::white);
    }
    if (image.height() > greatestHeight) {
        image = image.scaledToHeight(greatestHeight, Qt::SmoothTransformation);
    }
    image.convertTo(QImage::Format_RGBA8888);
    multiplyByAlpha(image);
    return image;
}

} // namespace

void Pictures::announce(const Frame& frame) {
    for (const DrawItem& item : frame.items) {
        const std::string& name = item.material.picture;
        if (!name.empty() && !announced_.contains(name)) {
            announced_.emplace(name,
                               std::async(std::launch::async, loadPicture, std::cref(resources_), name));
        }
    }
}

QImage Pictures::read(std::string_view name) {
    const auto announced = announced_.find(name);
    return announced != announced_.end() && announced->second.valid()
               ? announced->second.get()
               : loadPicture(resources_, std::string(name));
}

} // namespace vorbel
