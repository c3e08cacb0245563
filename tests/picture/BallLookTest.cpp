// Balls told apart without their colour, and from what lies around them.
#include "engine/GameLogic.h"
#include "platform/random/RandomSource.h"
#include "platform/render/ColorSpace.h"
#include "platform/render/Offscreen.h"
#include "platform/render/Uniforms.h"
#include "rules/BallModel.h"
#include "rules/CourtGeometry.h"
#include "scene/Ball.h"
#include "tests/picture/PictureTest.h"

#include <algorithm>
#include <cmath>

#include <glm/geometric.hpp>

namespace vorbel {
namespace {

constexpr int width = 1200;
constexpr int height = 800;

double luminance(QRgb pixel) {
    const auto light =
        linearLight({static_cast<float>(qRed(pixel)) / 255, static_cast<float>(qGreen(pixel)) / 255,
                     static_cast<float>(qBlue(pixel)) / 255});
    return static_cast<double>(glm::dot(light, glm::vec3(0.2126F, 0.7152F, 0.0722F)));
}

// Of relative luminances, as for the contrast of texts.
double contrast(double a, double b) {
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

// A ball of the arena in a window of 800 lines.
class DrawnArenaBall {
public:
    DrawnArenaBall(BallColor color, const Vec3& place, BallLook look) {
        SeededRandom random(2024);
        Scene scene = GameLogic::create3DScene(random);
        scene.root->addChild(makeBall(color, place, PhysicsBody::Type::fixed));
        setBallLook(scene, look);
        const Frame frame = makeFrame(scene, 1);
        std::string error;
        picture_ = renderToImage(frame, width, height, Resources(), error);
        EXPECT_FALSE(picture_.isNull()) << error;
        const glm::vec4 clip =
            sceneView(frame, {}, static_cast<float>(width) / height).viewProjection * glm::vec4(place, 1);
        x_ = (static_cast<double>(clip.x / clip.w) + 1) / 2 * width;
        y_ = (1 - static_cast<double>(clip.y / clip.w)) / 2 * height;
        constexpr double linesToTangent = 692.8; // 60 degrees high
        radius_ = ball::radius * linesToTangent / static_cast<double>(clip.w);
    }

    [[nodiscard]] double pixelsAcross() const { return 2 * radius_; }
    [[nodiscard]] double centre() const { return at(x_, y_); }

    // The lightest and the darkest pixel between two distances from the centre, in radii. Of a cross, only the parts
    // between its bars count with `besideBars`.
    [[nodiscard]] double lightest(double from, double to) const { return extreme(from, to, false, false); }
    [[nodiscard]] double darkest(double from, double to, bool besideBars = false) const {
        return extreme(from, to, true, besideBars);
    }

private:
    [[nodiscard]] double at(double x, double y) const {
        return luminance(picture_.pixel(static_cast<int>(std::floor(x)), static_cast<int>(std::floor(y))));
    }
    [[nodiscard]] double extreme(double from, double to, bool dark, bool besideBars) const {
        double found = dark ? 1 : 0;
        for (int y = static_cast<int>(y_ - to * radius_) - 1; y <= y_ + to * radius_; ++y) {
            for (int x = static_cast<int>(x_ - to * radius_) - 1; x <= x_ + to * radius_; ++x) {
                const double right = (x + 0.5 - x_) / radius_;
                const double up = (y_ - y - 0.5) / radius_;
                const double distance = std::hypot(right, up);
                const bool counts = !besideBars || (up > 0.3 && std::abs(right) > 0.3); // the lit side
                if (distance >= from && distance <= to && counts) {
                    const double here = at(x, y);
                    found = dark ? std::min(found, here) : std::max(found, here);
                }
            }
        }
        return found;
    }

    QImage picture_;
    double x_ = 0; // of the centre, pixels
    double y_ = 0;
    double radius_ = 0; // pixels
};

constexpr Vec3 nearby{0.3, court::restingHeight, -2};
constexpr Vec3 farAway{0.3, court::restingHeight, -8.9}; // 10 m from the eye

TEST(BallLookTest, RedBallsCarryRingsNearAndAtTenMetres) {
    for (const Vec3& place : {nearby, farAway}) {
        const DrawnArenaBall red(BallColor::red, place, {.marked = true});
        EXPECT_GE(contrast(red.lightest(0.4, 0.8), red.centre()), 3) << red.pixelsAcross() << " pixels";
        EXPECT_LT(red.centre(), red.lightest(0.4, 0.8));
    }
}

TEST(BallLookTest, BlueBallsCarryCrossesNearAndAtTenMetres) {
    for (const Vec3& place : {nearby, farAway}) {
        const DrawnArenaBall blue(BallColor::blue, place, {.marked = true});
        const double beside = blue.darkest(0.4, 0.75, true);
        EXPECT_GE(contrast(blue.centre(), beside), 3) << blue.pixelsAcross() << " pixels";
        EXPECT_GT(blue.centre(), beside);
    }
}

TEST(BallLookTest, ABlackAndAWhiteLineSurroundAnOutlinedBallOfAnySize) {
    for (const Vec3& place : {nearby, farAway}) {
        for (const BallColor color : {BallColor::red, BallColor::blue, BallColor::jack}) {
            const DrawnArenaBall ball(color, place, {.outlined = true});
            const double pixel = 2 / ball.pixelsAcross(); // radii
            const double black = ball.darkest(1 + 0.5 * pixel, 1 + 1.5 * pixel);
            const double white = ball.lightest(1 + 2.4 * pixel, 1 + 3.2 * pixel);
            EXPECT_LT(black, 0.01) << ball.pixelsAcross() << " pixels";
            EXPECT_GT(white, 0.8) << ball.pixelsAcross() << " pixels";
        }
    }
}

using MarkTest = PictureTest;

TEST_F(MarkTest, AMarkOnALightColourIsBlackHoweverDarkItsPlace) {
    addLights();
    for (const double rise : {0.0, 14.0}) { // lit, and above the light
        const Node::Ptr ball =
            add(Sphere{0.5}, {.diffuse = colors::white, .seams = true, .mark = Mark::cross}, {0, rise, 0});
        scene.root->children().front()->setPosition({0, 2 + rise, 4});
        const QImage drawn = draw();
        EXPECT_LT(luminance(drawn.pixel(pixelAt({0, rise, 0}))), 0.01);
        EXPECT_GE(contrast(0, luminance(drawn.pixel(pixelAt({0.25, rise + 0.25, 0})))), 3);
        scene.root->removeChild(*ball);
    }
}

TEST_F(MarkTest, AMarkFacesTheViewerHoweverTheBallLies) {
    const Node::Ptr ball =
        add(Sphere{0.5}, {.diffuse = colors::systemRed, .seams = true, .mark = Mark::ring});
    for (const double turn : {0.0, 0.8, 1.9}) {
        ball->setEulerAngles({turn, 0.5 * turn, 0});
        const QImage drawn = draw();
        EXPECT_GT(luminance(drawn.pixel(pixelAt({0.3, 0, 0}))), 0.95);
        EXPECT_GT(luminance(drawn.pixel(pixelAt({-0.3, 0, 0}))), 0.95);
        EXPECT_LT(luminance(drawn.pixel(pixelAt({0, 0, 0}))), 0.25);
    }
}

} // namespace
} // namespace vorbel
