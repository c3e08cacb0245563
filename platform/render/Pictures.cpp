#include "platform/render/Pictures.h"

#include "platform/render/ColorSpace.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

#include <QImage>

namespace vorbel {

namespace {

// In pixels: a spectator is at most a thirteenth of the picture high, so this does for screens of 3000 lines.
constexpr int greatestHeight = 256;

constexpr int channels = 4; // red, green, blue, alpha

using LightTable = std::array<float, 256>; // of each encoded value

LightTable makeLightTable() {
    LightTable light{};
    for (std::size_t i = 0; i < light.size(); ++i) {
        light[i] = linearLight(static_cast<float>(i) / 255);
    }
    return light;
}

// Of light in 0…1. A table, as a power for every component of every picture took a twentieth of the start; its
// steps are even in the square root, which is nearly the encoding: half a step of 255 off at most.
uchar encodedByte(float light) {
    constexpr std::size_t steps = 4096;
    static const std::array<uchar, steps> table = [] {
        std::array<uchar, steps> encoded{};
        for (std::size_t i = 0; i < steps; ++i) {
            const float root = static_cast<float>(i) / (steps - 1);
            encoded[i] = static_cast<uchar>(std::lround(255 * encodedLight(root * root)));
        }
        return encoded;
    }();
    return table[static_cast<std::size_t>(std::lround(std::sqrt(light) * (steps - 1)))];
}

// Multiplies the light, not its encoding, by alpha; only the pixels of the outline cost time.
void multiplyByAlpha(QImage& image, const LightTable& light) {
    for (int y = 0; y < image.height(); ++y) {
        uchar* pixel = image.scanLine(y);
        for (int x = 0; x < image.width(); ++x, pixel += channels) {
            for (int channel = 0; channel < 3 && pixel[3] < 255; ++channel) {
                const float alpha = static_cast<float>(pixel[3]) / 255;
                pixel[channel] = pixel[3] == 0 ? 0 : encodedByte(light[pixel[channel]] * alpha);
            }
        }
    }
}

// Four pixels as one: the light of all, and their alpha.
void mix(const std::array<const uchar*, 4>& four, const LightTable& light, uchar* mixed) {
    for (int channel = 0; channel < 3; ++channel) {
        float sum = 0;
        for (const uchar* pixel : four) {
            sum += light[pixel[channel]];
        }
        mixed[channel] = encodedByte(sum / 4);
    }
    mixed[3] = static_cast<uchar>((four[0][3] + four[1][3] + four[2][3] + four[3][3] + 2) / 4);
}

// Drivers make smaller sizes as well, but those that draw without graphics hardware compile a shader for it
// at every start, which takes longer than this.
QImage halved(const QImage& image, const LightTable& light) {
    QImage half(std::max(image.width() / 2, 1), std::max(image.height() / 2, 1), image.format());
    for (int y = 0; y < half.height(); ++y) {
        const uchar* upper = image.constScanLine(2 * y);
        const uchar* lower = image.constScanLine(std::min(2 * y + 1, image.height() - 1));
        uchar* mixed = half.scanLine(y);
        for (int x = 0; x < half.width(); ++x, mixed += channels) {
            const int left = 2 * x * channels;
            const int right = std::min(2 * x + 1, image.width() - 1) * channels;
            mix({upper + left, upper + right, lower + left, lower + right}, light, mixed);
        }
    }
    return half;
}

PictureSizes loadPicture(const Resources& resources, const std::string& name) {
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
    const LightTable light = makeLightTable();
    multiplyByAlpha(image, light);
    PictureSizes sizes{std::move(image)};
    while (sizes.back().width() > 1 || sizes.back().height() > 1) {
        sizes.push_back(halved(sizes.back(), light));
    }
    return sizes;
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

PictureSizes Pictures::read(std::string_view name) {
    const auto announced = announced_.find(name);
    return announced != announced_.end() && announced->second.valid()
               ? announced->second.get()
               : loadPicture(resources_, std::string(name));
}

} // namespace vorbel
