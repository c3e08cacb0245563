// Transparency, pictures, edges.
#include "tests/picture/PictureTest.h"

#include "platform/render/ColorSpace.h"

#include <cmath>
#include <set>

#include <glm/gtc/quaternion.hpp>

namespace vorbel {
namespace {

using SurfaceTest = PictureTest;

Material unlit(const Color& color) {
    return {.diffuse = color, .unlit = true};
}

TEST_F(SurfaceTest, TintLetsTheFloorShowThrough) {
    add(Plane{4, 4}, unlit(colors::white));
    add(Plane{1, 1}, unlit(colors::black.withAlpha(0.25F)), {0, 0, 0.01});
    EXPECT_NEAR(lightAt(draw(), {0, 0, 0}), 0.75, 0.01) << "mixed as light, not as encoded colours";
}

TEST_F(SurfaceTest, NearerTintLiesOverTheFartherOneInAnyOrder) {
    add(Plane{1, 1}, unlit(colors::white.withAlpha(0.5F)), {0, 0, 0.02});
    add(Plane{1, 1}, unlit(colors::systemRed.withAlpha(0.5F)), {0, 0, 0.01});
    const auto red = static_cast<double>(linearLight(colors::systemRed.green));
    EXPECT_NEAR(lightAt(draw(), {0, 0, 0.02}), 0.5 + 0.5 * 0.5 * red, 0.01);
}

TEST_F(SurfaceTest, HiddenNodeLeavesNoTrace) {
    addLights();
    add(Box{40, 0.1, 40}, {}, {0, -0.05, 0});
    const QImage without = draw();
    const Node::Ptr pointer = add(Box{0.5, 0.5, 0.5}, {.emission = colors::systemRed}, {0, 0.5, 0});
    EXPECT_NE(draw(), without);
    pointer->opacity = 0;
    EXPECT_EQ(draw(), without);
}

TEST_F(SurfaceTest, HalfShownNodeIsHalfThere) {
    add(Plane{1, 1}, unlit(colors::white))->opacity = 0.5;
    EXPECT_NEAR(lightAt(draw(), {0, 0, 0}), 0.5, 0.01);
}

TEST_F(SurfaceTest, PlaneIsSeenFromBehindOnlyWhenDoubleSided) {
    const Node::Ptr flag = add(Plane{2, 2}, unlit(colors::white));
    flag->setEulerAngles({0, std::acos(-1.0), 0});
    EXPECT_EQ(encodedAt(draw(), {0, 0, 0}), 0);
    flag->geometry->material.doubleSided = true;
    EXPECT_EQ(encodedAt(draw(), {0, 0, 0}), 1);
}

TEST_F(SurfaceTest, SpotLightReachesTheSideOfADoubleSidedPlaneThatIsSeen) {
    addLights();
    const Node::Ptr sheet = add(Plane{2, 2}, {.diffuse = {0.5F, 0.5F, 0.5F}, .doubleSided = true});
    sheet->setEulerAngles({std::acos(0.0), 0, 0}); // its front looks down
    EXPECT_NEAR(encodedAt(draw(), {0, 0, 0}), encoded(static_cast<double>(linearLight(0.5F)) * 1.65),
                colorStep);
}

TEST_F(SurfaceTest, UnlitPictureKeepsItsColoursInTheDarkAndStandsUpright) {
    QImage image(64, 64, QImage::Format_ARGB32);
    image.fill(QColor(200, 100, 50));
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 64; ++x) {
            image.setPixelColor(x, y, QColor(20, 180, 90));
        }
    }
    savePicture(image, "Halves");
    add(Plane{2, 2}, {.picture = "Halves", .unlit = true});
    const QImage drawn = draw();
    EXPECT_NEAR(colorAt(drawn, {0, 0.5, 0}).green(), 180, 1) << "the upper half";
    EXPECT_NEAR(colorAt(drawn, {0, -0.5, 0}).red(), 200, 1) << "the lower half";
}

// A white disc on hidden black: what is hidden must not darken the disc's outline.
QImage disc() {
    QImage image(128, 128, QImage::Format_ARGB32);
    for (int y = 0; y < 128; ++y) {
        for (int x = 0; x < 128; ++x) {
            const bool inside = std::hypot(x - 63.5, y - 63.5) < 40;
            image.setPixelColor(x, y, inside ? QColor(255, 255, 255) : QColor(0, 0, 0, 0));
        }
    }
    return image;
}

TEST_F(SurfaceTest, CutOutShowsWhatIsBehindItWithoutAHalo) {
    savePicture(disc(), "Disc");
    add(Plane{8, 8}, unlit({0.5F, 0.5F, 0.5F}), {0, 0, -0.5});
    add(Plane{2, 2}, {.picture = "Disc", .doubleSided = true, .unlit = true});
    const QImage drawn = draw();
    EXPECT_EQ(encodedAt(drawn, {0, 0, 0}), 1);
    EXPECT_NEAR(encodedAt(drawn, {0.9, 0.9, 0}), 0.5, colorStep);
    std::set<int> outline;
    for (double x = 0.5; x < 0.75; x += 0.002) {
        outline.insert(colorAt(drawn, {x, 0, 0}).green());
    }
    EXPECT_GE(*outline.begin(), 126) << "nothing along the edge is darker than the ground";
}

TEST_F(SurfaceTest, CutOutCastsTheShadowOfItsPicture) {
    savePicture(disc(), "Disc");
    addLights();
    add(Box{40, 0.1, 40}, {.diffuse = {0.5F, 0.5F, 0.5F}}, {0, -0.05, 0});
    const Node::Ptr sheet =
        add(Plane{2, 2}, {.picture = "Disc", .doubleSided = true, .unlit = true}, {0, 1.9, -1});
    sheet->setEulerAngles({std::acos(0.0), 0, 0});
    const QImage drawn = draw();
    EXPECT_NEAR(encodedAt(drawn, {0, 0, -1}), encoded(static_cast<double>(linearLight(0.5F)) * 0.15),
                colorStep);
    EXPECT_GT(encodedAt(drawn, {1, 0, -0.1}), 0.5) << "below a transparent corner";
}

TEST_F(SurfaceTest, MissingPictureIsABlankPlane) {
    add(Plane{2, 2}, {.picture = "NoSuchPicture", .doubleSided = true, .unlit = true});
    EXPECT_EQ(colorAt(draw(), {0.5, 0.5, 0}), QColor(Qt::white));
}

TEST_F(SurfaceTest, EdgesAreSmooth) {
    const Node::Ptr line = add(Plane{3, 0.3}, unlit(colors::white));
    line->setEulerAngles({0, 0, 0.1});
    const QImage drawn = draw();
    std::set<int> values;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            values.insert(drawn.pixelColor(x, y).green());
        }
    }
    EXPECT_GE(values.size(), 5U) << "at least three steps between black and white";
}

// The mean and the extremes of green, as linear light, over the disc of a ball at the origin.
struct DiscLight {
    double mean = 0;
    double darkest = 1;
    double lightest = 0;
};

DiscLight discLight(const QImage& drawn, const QPoint& centre, double radius) {
    DiscLight light;
    int count = 0;
    for (int y = 0; y < drawn.height(); ++y) {
        for (int x = 0; x < drawn.width(); ++x) {
            if (std::hypot(x - centre.x(), y - centre.y()) < radius) {
                const auto here =
                    static_cast<double>(linearLight(static_cast<float>(drawn.pixelColor(x, y).greenF())));
                light.mean += here;
                light.darkest = std::min(light.darkest, here);
                light.lightest = std::max(light.lightest, here);
                ++count;
            }
        }
    }
    light.mean /= count;
    return light;
}

TEST_F(SurfaceTest, PanelsAndSeamsOfABallHaveItsColourAllTogether) {
    const Node::Ptr ball = add(Sphere{1}, {.diffuse = {0.5F, 0.5F, 0.5F}, .unlit = true, .seams = true});
    double mean = 0;
    for (int turn = 0; turn < 5; ++turn) {
        ball->setEulerAngles({0.7 * turn, 0.4 * turn, 0});
        const DiscLight light = discLight(draw(), pixelAt({0, 0, 0}), 34);
        EXPECT_GT(light.lightest, 1.3 * light.darkest) << "the pattern is seen";
        mean += light.mean / 5;
    }
    EXPECT_NEAR(mean, static_cast<double>(linearLight(0.5F)), 0.006);
}

TEST_F(SurfaceTest, SmallBallIsPlain) {
    add(Sphere{0.12}, {.diffuse = {0.5F, 0.5F, 0.5F}, .unlit = true, .seams = true}); // 9 pixels across
    const DiscLight light = discLight(draw(), pixelAt({0, 0, 0}), 3);
    EXPECT_LT(light.lightest, 1.03 * light.darkest);
}

TEST_F(SurfaceTest, GlowingBarHasDarkEdges) {
    scene.root->children().front()->setPosition({0, 0.1, 0.2});
    scene.root->children().front()->setEulerAngles({-std::atan2(0.1, 0.2), 0, 0});
    add(Box{0.4, 0.02, 0.02}, {.diffuse = colors::systemRed, .emission = colors::systemRed});
    const QImage drawn = draw();
    EXPECT_GT(colorAt(drawn, {0, 0.01, 0}).red(), 250);
    EXPECT_LT(colorAt(drawn, {0, 0.01, -0.009}).red(), 110);
    EXPECT_LT(colorAt(drawn, {0, 0.01, 0.009}).red(), 110);
}

TEST_F(SurfaceTest, LayersAMillimetreApartDoNotMixAtTenMetres) {
    scene.root->children().front()->setPosition({0, 2, 10});
    scene.root->children().front()->setEulerAngles({-std::atan2(2.0, 10.0), 0, 0});
    add(Plane{2, 2}, unlit(colors::white), {0, 0, 0.001});
    add(Plane{2.5, 2.5}, unlit(colors::systemRed));
    const QImage drawn = draw();
    for (double x = -0.9; x <= 0.9; x += 0.05) {
        for (double y = -0.9; y <= 0.9; y += 0.05) {
            ASSERT_EQ(encodedAt(drawn, {x, y, 0}), 1) << "at " << x << ", " << y;
        }
    }
}

} // namespace
} // namespace vorbel
