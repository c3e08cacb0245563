#include "tests/scenario/menus/ColorSight.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace vorbel {

namespace {

using Matrix = std::array<std::array<double, 3>, 3>; // of linear red, green and blue

constexpr std::array<Matrix, allSights.size()> matrices{{
    {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}},
    {{{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}},
    {{{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}},
    {{{1.255528, -0.076749, -0.178779}, {-0.078411, 0.930809, 0.147602}, {0.004733, 0.691367, 0.303900}}},
}};

double linear(double value) {
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

float encoded(double value) {
    const double light = std::clamp(value, 0.0, 1.0);
    return static_cast<float>(light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1 / 2.4) - 0.055);
}

} // namespace

const char* nameOf(Sight sight) {
    constexpr std::array names{"normal", "protan", "deutan", "tritan"};
    return names[static_cast<std::size_t>(sight)];
}

QColor seenBy(Sight sight, const QColor& color) {
    if (sight == Sight::normal) {
        return color;
    }
    const double red = linear(color.redF());
    const double green = linear(color.greenF());
    const double blue = linear(color.blueF());
    const auto mixed = [&](const std::array<double, 3>& row) {
        return encoded(row[0] * red + row[1] * green + row[2] * blue);
    };
    const Matrix& matrix = matrices[static_cast<std::size_t>(sight)];
    return QColor::fromRgbF(mixed(matrix[0]), mixed(matrix[1]), mixed(matrix[2]), color.alphaF());
}

QImage seenBy(Sight sight, const QImage& picture) {
    QImage seen = picture.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < seen.height(); ++y) {
        for (int x = 0; x < seen.width(); ++x) {
            seen.setPixelColor(x, y, seenBy(sight, seen.pixelColor(x, y)));
        }
    }
    return seen;
}

QImage sheetOf(const QImage& picture) {
    constexpr QSize half(600, 400);
    const QImage small = picture.scaled(half, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    QImage sheet(half * 2, QImage::Format_RGB32);
    QPainter painter(&sheet);
    for (std::size_t i = 0; i < allSights.size(); ++i) {
        const QPoint place(static_cast<int>(i % 2) * half.width(), static_cast<int>(i / 2) * half.height());
        painter.drawImage(place, seenBy(allSights[i], small));
        painter.fillRect(QRect(place + QPoint(4, half.height() - 26), QSize(64, 20)), Qt::black);
        painter.setPen(Qt::white);
        painter.drawText(place + QPoint(10, half.height() - 11), QString::fromLatin1(nameOf(allSights[i])));
    }
    return sheet;
}

} // namespace vorbel
