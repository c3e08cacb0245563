// Light and shadow on surfaces.
#include "tests/picture/PictureTest.h"

#include "platform/render/ColorSpace.h"
#include "platform/render/Pictures.h"
#include "platform/render/Renderer.h"

#include <algorithm>
#include <cmath>
#include <set>

#include <glm/gtc/quaternion.hpp>

namespace vorbel {
namespace {

constexpr Color grey{0.5F, 0.5F, 0.5F};
const double greyLight = static_cast<double>(linearLight(0.5F));

class LightTest : public PictureTest {
protected:
    LightTest() { spot = addLights(); }

    // A flat grey ground, its surface at y = 0.
    Node::Ptr addGround() { return add(Box{40, 0.1, 40}, {.diffuse = grey}, {0, -0.05, 0}); }

    Node::Ptr spot;
};

TEST_F(LightTest, SurfaceUnderTheSpotReflectsAmbientPlusSpotLight) {
    addGround();
    EXPECT_NEAR(encodedAt(draw(), {0, 0, 0}), encoded(greyLight * (0.15 + 1.5)), colorStep);
}

TEST_F(LightTest, LightFallsWithTheCosineButNotWithTheDistance) {
    const Node::Ptr ground = addGround();
    ground->setOrientation(glm::angleAxis(std::acos(0.6), Vec3(1, 0, 0)));
    ground->setPosition(ground->orientation() * Vec3(0, -0.05, 0));
    const double expected = encoded(greyLight * (0.15 + 1.5 * 0.6));
    EXPECT_NEAR(encodedAt(draw(), {0, 0, 0}), expected, colorStep);
    spot->setPosition({0, 50, 0});
    EXPECT_NEAR(encodedAt(draw(), {0, 0, 0}), expected, colorStep);
}

TEST_F(LightTest, BrightSurfacesEndAtFullWhite) {
    add(Box{40, 0.1, 40}, {.diffuse = colors::white}, {0, -0.05, 0});
    EXPECT_EQ(colorAt(draw(), {0, 0, 0}), QColor(Qt::white));
}

TEST_F(LightTest, OnlyAmbientLightReachesBeyondTheOuterAngle) {
    addGround();
    spot->setPosition({0, 0.8, 0}); // 65 degrees from the axis: a circle with a radius of 1.72 m
    const QImage image = draw();
    const double ambient = encoded(greyLight * 0.15);
    EXPECT_NEAR(encodedAt(image, {1.85, 0, 0}), ambient, colorStep);
    EXPECT_NEAR(encodedAt(image, {-1.85, 0, 0}), ambient, colorStep);
    EXPECT_GT(encodedAt(image, {1.4, 0, 0}), ambient + 5 * colorStep);
}

TEST_F(LightTest, ConeIsFullyBrightInsideTheInnerAngleAndFadesEvenly) {
    addGround();
    constexpr double lampHeight = 0.8;
    spot->setPosition({0, lampHeight, 0});
    const QImage image = draw();
    const double inner = 34.0 * std::acos(0.0) / 90; // radians from the axis, a degree inside
    EXPECT_NEAR(encodedAt(image, {lampHeight * std::tan(inner), 0, 0}),
                encoded(greyLight * (0.15 + 1.5 * std::cos(inner))), 3 * colorStep);
    double last = encodedAt(image, {0, 0, 0});
    for (double x = 0; x < 1.8; x += 0.05) {
        const double now = encodedAt(image, {x, 0, 0});
        EXPECT_LE(now, last + colorStep) << "at " << x << " m";
        EXPECT_GT(now, last - 0.12) << "a jump at " << x << " m";
        last = now;
    }
}

TEST_F(LightTest, BallShadesTheGroundBelowItAndNotBesideIt) {
    addGround();
    add(Sphere{0.3}, {.diffuse = grey}, {0, 1.2, 0});
    const QImage image = draw();
    EXPECT_NEAR(encodedAt(image, {0, 0, 0}), encoded(greyLight * 0.15), colorStep);
    EXPECT_NEAR(encodedAt(image, {1, 0, 0}),
                encoded(greyLight * (0.15 + 1.5 * std::cos(std::atan(1.0 / 12)))), 2 * colorStep);
}

// Balls with seams are drawn in closed form, over the picture of all else.
class BallLightTest : public LightTest {
protected:
    Node::Ptr addBall(double radius, const Vec3& place) {
        return add(Sphere{radius}, {.diffuse = grey, .seams = true}, place);
    }
};

TEST_F(BallLightTest, ShadesTheGroundBelowItAndNotBesideIt) {
    addGround();
    addBall(0.3, {0, 1.2, 0});
    const QImage image = draw();
    EXPECT_NEAR(encodedAt(image, {0, 0, 0}), encoded(greyLight * 0.15), colorStep);
    EXPECT_NEAR(encodedAt(image, {1, 0, 0}),
                encoded(greyLight * (0.15 + 1.5 * std::cos(std::atan(1.0 / 12)))), 2 * colorStep);
}

TEST_F(BallLightTest, ShadowIsThatOfAnyOtherSphere) {
    addGround();
    const Node::Ptr ball = addBall(0.3, {0.8, 1.5, -0.4});
    const QImage closed = draw();
    ball->geometry->material.seams = false;
    const QImage mapped = draw();
    for (double x = 0.2; x < 1.6; x += 0.02) {
        EXPECT_NEAR(encodedAt(closed, {x, 0, -0.4}), encodedAt(mapped, {x, 0, -0.4}), 0.12) << "at " << x;
    }
}

TEST_F(BallLightTest, ShadesBallsBelowIt) {
    addGround();
    addBall(0.3, {0, 0.3, 0});
    const double inTheLight = lightAt(draw(), {0, 0.55, 0.16});
    addBall(0.3, {0, 1.6, 0});
    EXPECT_LT(lightAt(draw(), {0, 0.55, 0.16}), 0.3 * inTheLight);
}

TEST_F(BallLightTest, IsDarkInTheShadowOfABox) {
    addGround();
    const Node::Ptr ball = addBall(0.3, {0, 0.3, 0});
    const double inTheLight = lightAt(draw(), {0, 0.55, 0.16});
    add(Box{2, 0.1, 2}, {.diffuse = grey}, {0, 4, 0});
    EXPECT_LT(lightAt(draw(), {0, 0.55, 0.16}), 0.3 * inTheLight);
}

TEST_F(BallLightTest, IsHiddenByWhatStandsInFrontOfIt) {
    addGround();
    const Node::Ptr box = add(Box{1, 1, 0.2}, {.diffuse = grey}, {0, 0.5, 1});
    const QImage without = draw();
    addBall(0.2, {0, 0.2, 0.2});
    EXPECT_EQ(colorAt(draw(), {0, 0.5, 1.1}), colorAt(without, {0, 0.5, 1.1}));
    scene.root->removeChild(*box);
    EXPECT_GT(lightAt(draw(), {0, 0.39, 0.26}), 0.1);
}

TEST_F(LightTest, EdgesOfShadowsAreSoft) {
    addGround();
    add(Box{1, 0.02, 1}, {.diffuse = grey}, {-0.5, 1, 0.6}); // its shadow ends at x = 0
    spot->light->shadowRadius = 60;                          // wide enough for this small picture
    const QImage image = draw();
    std::set<int> steps;
    for (double x = -0.4; x < 0.4; x += 0.01) {
        steps.insert(colorAt(image, {x, 0, 0.2}).green());
    }
    EXPECT_GT(steps.size(), 8U);
}

TEST_F(LightTest, SurfacesDoNotShadowThemselves) {
    for (const double degrees : {0.0, 30.0, 60.0, 75.0, 85.0}) {
        const Node::Ptr wall = add(Plane{8, 8}, {.diffuse = colors::white});
        wall->setEulerAngles({-std::acos(0.0) * (1 - degrees / 90), 0, 0});
        spot->light->castsShadow = true;
        const QImage shadowed = draw();
        spot->light->castsShadow = false;
        const QImage plain = draw();
        int worst = 0;
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                worst = std::max(worst, plain.pixelColor(x, y).green() - shadowed.pixelColor(x, y).green());
            }
        }
        EXPECT_LE(worst, 2) << "at " << degrees << " degrees";
        scene.root->removeChild(*wall);
    }
}

TEST_F(LightTest, EmissionGlowsWhereNoLightIs) {
    add(Box{0.5, 0.5, 0.5}, {.diffuse = colors::systemRed, .emission = colors::systemRed}, {0, 0, 0});
    spot->setPosition({0, -12, 0}); // far below, and turned away
    const QColor front = colorAt(draw(), {0, 0, 0.25});
    EXPECT_EQ(front.red(), 255);
    EXPECT_NEAR(static_cast<double>(front.greenF()), encoded(1.15 * static_cast<double>(linearLight(0.231F))),
                colorStep);
}

TEST(RendererTest, WithoutAContextSaysSo) {
    std::string error;
    const Resources resources;
    Pictures pictures(resources);
    EXPECT_EQ(Renderer::create(pictures, error), nullptr);
    EXPECT_EQ(error, "OpenGL is not available.");
}

} // namespace
} // namespace vorbel
