// What the stands need of the spectators' pictures, which are shown as they are, whatever the hall's light.
#include <gtest/gtest.h>

#include <QImage>

#include <algorithm>
#include <cmath>
#include <string>

namespace vorbel {
namespace {

struct Spectator {
    const char* name;
    double aspectRatio; // of the plane in the stands
};

class SpectatorPictureTest : public testing::TestWithParam<Spectator> {
protected:
    static bool covered(QRgb pixel) { return qAlpha(pixel) > 127; }
    static int brightness(QRgb pixel) { return std::max({qRed(pixel), qGreen(pixel), qBlue(pixel)}); }

    // Where the figures are, in pixels.
    [[nodiscard]] QRect figures() const {
        QRect all;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (covered(picture.pixel(x, y))) {
                    all |= QRect(x, y, 1, 1);
                }
            }
        }
        return all;
    }
    // Of the figures between two heights, given from 0 at the top to 1 at the floor.
    [[nodiscard]] double meanBrightness(double from, double to) const {
        double sum = 0;
        int count = 0;
        for (int y = static_cast<int>(from * picture.height()); y < to * picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (covered(picture.pixel(x, y))) {
                    sum += brightness(picture.pixel(x, y));
                    ++count;
                }
            }
        }
        return sum / std::max(count, 1);
    }

    const QImage picture =
        QImage(QStringLiteral(VORBEL_PICTURES "/") + QLatin1String(GetParam().name) + QStringLiteral(".png"))
            .convertToFormat(QImage::Format_ARGB32);
};

TEST_P(SpectatorPictureTest, ItHasTheShapeOfItsPlane) {
    EXPECT_NEAR(picture.width(), GetParam().aspectRatio * picture.height(), 1);
}

TEST_P(SpectatorPictureTest, NothingOutshinesTheBalls) {
    int brightest = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            brightest = std::max(brightest, qAlpha(pixel) > 0 ? brightness(pixel) : 0);
        }
    }
    EXPECT_LE(brightest, 200);
    EXPECT_GE(brightest, 150); // nor is it all dark
}

TEST_P(SpectatorPictureTest, TheFiguresFillItAndStandOnItsLowerEdge) {
    const QRect filled = figures();
    EXPECT_GE(filled.width(), 0.94 * picture.width());
    EXPECT_GE(filled.height(), 0.94 * picture.height());
    EXPECT_GE(filled.bottom(), picture.height() - 3);
}

TEST_P(SpectatorPictureTest, LightFallsFromAboveAndFeetAreInTheDark) {
    EXPECT_LT(meanBrightness(0.9, 1), 48);
    EXPECT_GT(meanBrightness(0.1, 0.4), 90);
}

INSTANTIATE_TEST_SUITE_P(All, SpectatorPictureTest,
                         testing::Values(Spectator{"SpectatorBrazil1", 447.0 / 796},
                                         Spectator{"SpectatorItalyBaby", 487.0 / 870},
                                         Spectator{"SpectatorPortugal", 544.0 / 905},
                                         Spectator{"SpectatorThaiMan", 527.0 / 900},
                                         Spectator{"SpectatorBritishOldMan", 565.0 / 907},
                                         Spectator{"SpectatorBrazilGirl", 149.0 / 284},
                                         Spectator{"SpectatorGermanyWoman", 155.0 / 287}),
                         [](const auto& spectator) { return std::string(spectator.param.name); });

} // namespace
} // namespace vorbel
