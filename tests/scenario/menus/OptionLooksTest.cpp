// What the options for little sight make of the window, for every kind of sight: how well it stands out, in figures, and
// pictures of it for whoever wants to look at them.
#include "tests/MatchSetup.h"
#include "tests/scenario/menus/ColorSight.h"
#include "tests/scenario/menus/Contrast.h"
#include "tests/scenario/menus/MenuWindow.h"

#include "platform/render/Extent.h"
#include "rules/BallModel.h"
#include "scene/Pointer.h"

#include <QDir>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace vorbel {

namespace {

constexpr double seen = 3;      // Web Content Accessibility Guidelines, of what is no text
constexpr double legible = 4.5; // of texts

const Resources resources({VORBEL_RESOURCES_FOLDER});

} // namespace

class OptionLooksTest : public testing::Test {
protected:
    MenuWindow game{resources};
    GameLogic& match = game.view().gameLogic();
    MatchSetup setup{match};

    static constexpr QRect court{150, 360, 600, 400}; // where the pointer and some balls are seen
    static constexpr Vec3 redBall{-0.5, court::restingHeight, -3};
    static constexpr Vec3 blueBall{0.3, court::restingHeight, -3};

    // Red aims, over a court with balls on it.
    OptionLooksTest() {
        game.setLanguage(AppLanguage::en);
        game.open(MenuScreen::hidden);
        match.processInput();
        setup.place(BallColor::jack, 0, -3.5);
        for (const double aside : {0.0, 0.8, 1.4}) {
            setup.place(BallColor::red, redBall.x - aside, redBall.z - 2 * aside);
            setup.place(BallColor::blue, blueBall.x + aside, blueBall.z - 2 * aside);
        }
        setup.state().phase = GamePhase::playing;
    }
    void choose(Option option, int value = 1) { game.view().options()->set(option, value); }

    // The window with that look; it, or a part of it, is kept as NAME.jpg in the folder that the variable VORBEL_LOOKS names.
    QImage look(const char* name, const QRect& part = {}) {
        game.settle();
        QImage picture = game.picture().convertToFormat(QImage::Format_RGB32);
        if (const char* folder = std::getenv("VORBEL_LOOKS")) {
            const QString path = QString::fromLocal8Bit(folder);
            QDir().mkpath(path);
            constexpr int quality = 80;
            EXPECT_TRUE(
                sheetOf(part.isNull() ? picture : picture.copy(part))
                    .save(QStringLiteral("%1/%2.jpg").arg(path, QLatin1String(name)), "JPG", quality));
        }
        return picture;
    }

    // Of the lightest and the darkest of the pixels of a picture between two distances from a ball's centre, in radii.
    double contrastAround(const QImage& picture, const Vec3& ball, double from, double to, Sight sight) {
        const QRectF place = placeOf(ball);
        std::vector<QColor> colors;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const double away = 2 *
                                    std::hypot(x + 0.5 - place.center().x(), y + 0.5 - place.center().y()) /
                                    place.width();
                if (away >= from && away <= to) {
                    colors.push_back(seenBy(sight, picture.pixelColor(x, y)));
                }
            }
        }
        return contrastOfAll(colors);
    }
    static double contrastOfAll(const std::vector<QColor>& colors) {
        double fromBlack = 1;
        double toWhite = 21;
        for (const QColor& color : colors) {
            fromBlack = std::max(fromBlack, contrast(color, Qt::black));
            toWhite = std::min(toWhite, contrast(color, Qt::black));
        }
        return fromBlack / toWhite; // of the lightest and the darkest
    }
    // In the window's pixels.
    QRectF placeOf(const Vec3& ball) {
        const QSize size = game.window().size();
        const Perspective camera = perspective(makeFrame(match.scene, 1).camera, size.width(), size.height());
        Extent middle;
        middle.add(glm::vec3(ball));
        middle.margin = static_cast<float>(ball::radius);
        const PixelRect seenAt = camera.bounds(middle);
        return {static_cast<qreal>(seenAt.left), static_cast<qreal>(size.height() - seenAt.top),
                static_cast<qreal>(seenAt.width()), static_cast<qreal>(seenAt.height())};
    }
    // The faintest text over the brightest, the darkest and a middle arena.
    double leastContrastOfTexts(Sight sight) {
        std::vector<QQuickItem*> texts;
        collect(
            *game.window().contentItem(),
            [](QQuickItem& item) {
                return isOfType(item, "QQuickText") && !item.property("text").toString().isEmpty();
            },
            texts);
        double least = 21;
        for (QQuickItem* text : texts) {
            for (const QColor& behind : {QColor(Qt::white), QColor(Qt::black), QColor(128, 128, 128)}) {
                least = std::min(least, contrastOver(*text, behind, sight));
            }
        }
        return least;
    }
    static void tell(const char* look, const char* what, Sight sight, double figure) {
        std::printf("%-10s %-28s %-7s %5.1f : 1\n", look, what, nameOf(sight), figure);
    }
};

TEST_F(OptionLooksTest, MarksStandOutOnTheirBallsForEverySight) {
    const QImage usual = look("usual", court);
    choose(Option::ballMarks);
    const QImage marked = look("marks", court);
    for (const Sight sight : allSights) {
        for (const auto& [ball, name] :
             {std::pair(redBall, "ring on red"), std::pair(blueBall, "cross on blue")}) {
            const double figure = contrastAround(marked, ball, 0, 0.75, sight);
            tell("marks", name, sight, figure);
            EXPECT_GE(figure, seen) << name << ", " << nameOf(sight);
            EXPECT_GT(figure, contrastAround(usual, ball, 0, 0.75, sight));
        }
    }
}

TEST_F(OptionLooksTest, OutlinesStandOutForEverySight) {
    choose(Option::ballOutlines);
    const QImage outlined = look("outlines", court);
    for (const Sight sight : allSights) {
        const double figure = contrastAround(outlined, redBall, 1, 1.5, sight);
        tell("outlines", "black in white", sight, figure);
        EXPECT_GE(figure, legible) << nameOf(sight);
    }
}

TEST_F(OptionLooksTest, TheWhitePointerStandsOutForEverySight) {
    const QPoint onPointer = placeOf({-1, arena::pointerHeight, -1.5}).center().toPoint();
    const auto acrossPointer = [&](const QImage& picture, Sight sight) {
        std::vector<QColor> colors;
        for (int x = onPointer.x() - 40; x < onPointer.x() + 40; ++x) {
            colors.push_back(seenBy(sight, picture.pixelColor(x, onPointer.y())));
        }
        return contrastOfAll(colors);
    };
    const QImage usual = look("usual", court);
    choose(Option::clearPointer);
    const QImage clear = look("pointer", court);
    for (const Sight sight : allSights) {
        tell("pointer", "usual, against the court", sight, acrossPointer(usual, sight));
        tell("pointer", "white between black edges", sight, acrossPointer(clear, sight));
        EXPECT_GE(acrossPointer(clear, sight), legible) << nameOf(sight);
        EXPECT_GT(acrossPointer(clear, sight), acrossPointer(usual, sight));
    }
}

TEST_F(OptionLooksTest, TextsOnSolidPanelsAreLegibleForEverySight) {
    look("usual-display");
    std::array<double, allSights.size()> usual{};
    for (const Sight sight : allSights) {
        usual[static_cast<std::size_t>(sight)] = leastContrastOfTexts(sight);
    }
    choose(Option::solidPanels);
    look("panels");
    for (const Sight sight : allSights) {
        tell("panels", "faintest text, as usual", sight, usual[static_cast<std::size_t>(sight)]);
        tell("panels", "faintest text, solid", sight, leastContrastOfTexts(sight));
        EXPECT_GE(leastContrastOfTexts(sight), legible) << nameOf(sight);
        EXPECT_GE(leastContrastOfTexts(sight), usual[static_cast<std::size_t>(sight)]);
    }
}

TEST_F(OptionLooksTest, LargeTextsAreLegibleForEverySight) {
    choose(Option::textSize, 200);
    look("text-size");
    for (const Sight sight : allSights) {
        tell("text size", "faintest text, 26 points", sight, leastContrastOfTexts(sight));
        EXPECT_GE(leastContrastOfTexts(sight), seen) << nameOf(sight);
    }
}

TEST(ColorSightTest, GreysStayAndRedAndGreenMeetWhereOneConeIsMissing) {
    for (const Sight sight : allSights) {
        for (const int grey : {0, 90, 255}) {
            EXPECT_NEAR(seenBy(sight, QColor(grey, grey, grey)).green(), grey, 1) << nameOf(sight);
            EXPECT_NEAR(seenBy(sight, QColor(grey, grey, grey)).red(), grey, 1) << nameOf(sight);
        }
    }
    const auto hueGap = [](Sight sight) {
        const QColor red = seenBy(sight, QColor(200, 60, 60));
        const QColor green = seenBy(sight, QColor(60, 130, 60));
        return std::abs(red.hslHue() - green.hslHue());
    };
    EXPECT_GT(hueGap(Sight::normal), 90);
    EXPECT_LT(hueGap(Sight::protan), 30);
    EXPECT_LT(hueGap(Sight::deutan), 30);
    EXPECT_GT(hueGap(Sight::tritan), 90);
}

} // namespace vorbel
