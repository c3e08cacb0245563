// The arena compared with stored pictures. After a wanted change of the picture run this with
// VORBEL_UPDATE_PICTURES=1, look at the new references and store them with the change.
#include "engine/GameLogic.h"
#include "platform/random/RandomSource.h"
#include "platform/render/ColorSpace.h"
#include "platform/render/Offscreen.h"
#include "platform/render/TrackedFrame.h"
#include "platform/render/Uniforms.h"
#include "rules/CourtGeometry.h"
#include "scene/Ball.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>

#include <QImage>
#include <glm/geometric.hpp>
#include <gtest/gtest.h>

namespace vorbel {
namespace {

namespace fs = std::filesystem;

struct Difference {
    double mean = 0;        // of all components, in steps of 255
    double farOffShare = 0; // of pixels that are off by more than 24 in some component
    QImage picture;         // four times as strong as it is
};

Difference compare(const QImage& actual, const QImage& wanted) {
    Difference difference;
    difference.picture = QImage(actual.size(), QImage::Format_RGB32);
    for (int y = 0; y < actual.height(); ++y) {
        for (int x = 0; x < actual.width(); ++x) {
            const QColor a = actual.pixelColor(x, y);
            const QColor b = wanted.pixelColor(x, y);
            const std::array<int, 3> off = {std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                                            std::abs(a.blue() - b.blue())};
            difference.mean += off[0] + off[1] + off[2];
            difference.farOffShare += std::max({off[0], off[1], off[2]}) > 24 ? 1 : 0;
            difference.picture.setPixelColor(
                x, y,
                QColor(std::min(4 * off[0], 255), std::min(4 * off[1], 255), std::min(4 * off[2], 255)));
        }
    }
    const double pixels = static_cast<double>(actual.width()) * actual.height();
    difference.mean /= 3 * pixels;
    difference.farOffShare /= pixels;
    return difference;
}

// Compares with the stored picture of that name; leaves the
// picture and the difference in a folder when they differ.
void expectLooksLike(const QImage& actual, const std::string& name) {
    const fs::path reference = fs::path(VORBEL_REFERENCE_PICTURES) / (name + ".png");
    if (std::getenv("VORBEL_UPDATE_PICTURES") != nullptr) {
        fs::create_directories(reference.parent_path());
        ASSERT_TRUE(actual.save(QString::fromStdString(reference.string())));
        return;
    }
    const QImage wanted(QString::fromStdString(reference.string()));
    ASSERT_EQ(wanted.size(), actual.size()) << "no stored picture of this size: " << reference;
    const Difference difference = compare(actual, wanted);
    EXPECT_LT(difference.mean, 0.4);
    EXPECT_LT(difference.farOffShare, 0.001); // the disc of a flag is four times as much
    if (testing::Test::HasFailure()) {
        const fs::path folder = fs::absolute("picture-failures");
        fs::create_directories(folder);
        actual.save(QString::fromStdString((folder / (name + ".png")).string()));
        difference.picture.save(QString::fromStdString((folder / (name + "-difference.png")).string()));
        ADD_FAILURE() << "the picture and its difference are in " << folder;
    }
}

// Without resources spectators are blank planes, so that a change of their pictures changes only the stand's.
QImage drawArena(const Scene& scene, const Resources& resources = Resources()) {
    std::string error;
    QImage image = renderToImage(makeFrame(scene, 1), 600, 400, resources, error);
    EXPECT_FALSE(image.isNull()) << error;
    return image;
}

Scene makeArena() {
    SeededRandom random(2024);
    return GameLogic::create3DScene(random);
}

TEST(ArenaPictureTest, EmptyCourt) {
    expectLooksLike(drawArena(makeArena()), "empty-court");
}

TEST(ArenaPictureTest, MiddleOfAnEnd) {
    struct Placed {
        BallColor color;
        double x;
        double z;
    };
    constexpr std::array<Placed, 9> balls = {{{BallColor::jack, 0.2, -6.0},
                                              {BallColor::red, 0.05, -5.8},
                                              {BallColor::blue, 0.4, -6.3},
                                              {BallColor::red, -0.6, -4.6},
                                              {BallColor::blue, 1.1, -5.0},
                                              {BallColor::blue, 0.1, -3.0},
                                              {BallColor::red, 3.3, -5.5},
                                              {BallColor::blue, -1.1, -2.0},
                                              {BallColor::red, -1.0, -0.9}}};
    Scene scene = makeArena();
    for (const Placed& ball : balls) {
        scene.root->addChild(
            makeBall(ball.color, {ball.x, court::restingHeight, ball.z}, PhysicsBody::Type::fixed));
    }
    const Node::Ptr pointer = scene.root->findChild("pointer");
    ASSERT_TRUE(pointer);
    pointer->opacity = 1;
    pointer->setEulerAngles({0, 0.2, 0});
    expectLooksLike(drawArena(scene), "middle-of-an-end");
}

// Of relative luminances, as for the contrast of texts.
double contrast(double a, double b) {
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

double luminance(QRgb pixel) {
    const auto light =
        linearLight({static_cast<float>(qRed(pixel)) / 255, static_cast<float>(qGreen(pixel)) / 255,
                     static_cast<float>(qBlue(pixel)) / 255});
    return static_cast<double>(glm::dot(light, glm::vec3(0.2126F, 0.7152F, 0.0722F)));
}

TEST(ArenaPictureTest, FarBallsStandOutFromTheCourt) {
    struct Shot {
        BallColor color;
        int height;
    };
    constexpr std::array<Shot, 4> shots = {
        {{BallColor::jack, 800}, {BallColor::red, 800}, {BallColor::blue, 800}, {BallColor::red, 2160}}};
    for (const auto& [color, height] : shots) {
        const int width = height * 3 / 2;
        Scene scene = makeArena();
        const Vec3 place(0.8, court::restingHeight, -11.5);
        scene.root->addChild(makeBall(color, place, PhysicsBody::Type::fixed));
        const Frame frame = makeFrame(scene, 1);
        std::string error;
        const QImage image = renderToImage(frame, width, height, Resources(), error);
        const glm::vec4 clip =
            sceneView(frame, {}, static_cast<float>(width) / static_cast<float>(height)).viewProjection *
            glm::vec4(glm::vec3(place) + glm::vec3(0, 0.015F, 0), 1);
        const int x = static_cast<int>((clip.x / clip.w + 1) / 2 * static_cast<float>(width));
        const int y = static_cast<int>((1 - clip.y / clip.w) / 2 * static_cast<float>(height));
        const double ground = luminance(image.pixel(x - height / 40, y));
        double darkest = 1;
        for (int i = 2; i < height / 66; ++i) {
            darkest = std::min(darkest, luminance(image.pixel(x - i, y)));
        }
        EXPECT_GE(contrast(darkest, ground), 3) << "the outline and the court " << static_cast<int>(color);
        EXPECT_GE(contrast(darkest, luminance(image.pixel(x, y))), color == BallColor::blue ? 1.5 : 2.5)
            << "the outline and the ball";
    }
}

// On the court: 12 m below the light.
TEST(ArenaPictureTest, TexelOfTheShadowMapIsFourMillimetresAtMost) {
    TrackedFrame tracked(4096);
    tracked.follow(makeFrame(makeArena(), 1), 1200, 800);
    const glm::vec2 texel = 12.0F * 2.0F * tracked.frustum().halfWidth / 4096.0F;
    EXPECT_LT(texel.x, 0.004F);
    EXPECT_LT(texel.y, 0.004F);
}

// Seen from another place: a yaw of 0 looks along −z.
Scene makeArenaSeenFrom(const Vec3& place, double yaw, double pitch) {
    Scene scene = makeArena();
    for (const Node::Ptr& node : scene.root->children()) {
        if (node->camera) {
            node->setPosition(place);
            node->setEulerAngles({pitch, yaw, 0});
        }
    }
    return scene;
}

TEST(ArenaPictureTest, AllFlagDesignsFromNearby) {
    const std::array<std::pair<const char*, double>, 3> parts = {
        {{"flags-left", -3.0}, {"flags-middle", 0.0}, {"flags-right", 3.0}}};
    for (const auto& [name, x] : parts) {
        expectLooksLike(drawArena(makeArenaSeenFrom({x, 1.95, -8.0}, 0, 0)), name);
    }
}

TEST(ArenaPictureTest, Referee) {
    expectLooksLike(drawArena(makeArenaSeenFrom({-2.2, 0.9, -5.6}, 1.1, -0.15)), "referee");
}

TEST(ArenaPictureTest, StandWithItsSpectators) {
    const Scene scene = makeArenaSeenFrom({1.5, 1.5, -6.25}, -1.57, 0);
    expectLooksLike(drawArena(scene, Resources({VORBEL_PICTURES})), "stand");
}

} // namespace
} // namespace vorbel
