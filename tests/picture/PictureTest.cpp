#include "tests/picture/PictureTest.h"

#include "platform/render/ColorSpace.h"
#include "platform/render/Offscreen.h"
#include "platform/render/Uniforms.h"

#include <cmath>

#include <glm/gtc/quaternion.hpp>

namespace vorbel {

PictureTest::PictureTest() : resources_({pictures_.path().toStdString()}) {
    auto camera = std::make_shared<Node>();
    camera->camera = Camera{};
    camera->setPosition({0, 2, 4});
    camera->setEulerAngles({-std::atan2(2.0, 4.0), 0, 0});
    scene.root->addChild(std::move(camera));
}

Node::Ptr PictureTest::add(Shape shape, Material material, const Vec3& position) {
    auto node = std::make_shared<Node>(Geometry{std::move(shape), std::move(material)});
    node->setPosition(position);
    scene.root->addChild(node);
    return node;
}

Node::Ptr PictureTest::addLights() {
    auto ambient = std::make_shared<Node>();
    ambient->light = Light{.intensity = 150};
    scene.root->addChild(std::move(ambient));

    auto spot = std::make_shared<Node>();
    spot->light = Light{.type = Light::Type::spot,
                        .intensity = 1500,
                        .spotInnerAngle = 35,
                        .spotOuterAngle = 65,
                        .castsShadow = true,
                        .shadowMapSize = 4096,
                        .shadowSampleCount = 16,
                        .shadowBias = 0.01,
                        .shadowRadius = 4};
    spot->setPosition({0, 12, 0});
    spot->setEulerAngles({-std::acos(0.0), 0, 0});
    scene.root->addChild(spot);
    return spot;
}

void PictureTest::savePicture(const QImage& image, const std::string& name) {
    ASSERT_TRUE(image.save(pictures_.filePath(QString::fromStdString(name + ".png"))));
}

QImage PictureTest::draw() {
    std::string error;
    QImage image = renderToImage(makeFrame(scene, 1), width, height, resources_, error);
    EXPECT_FALSE(image.isNull()) << error;
    return image.isNull() ? QImage(width, height, QImage::Format_RGB32) : image;
}

QPoint PictureTest::pixelAt(const Vec3& point) const {
    const Frame frame = makeFrame(scene, 1);
    const float aspectRatio = static_cast<float>(width) / height;
    const glm::vec4 clip = sceneView(frame, {}, aspectRatio).viewProjection * glm::vec4(glm::vec3(point), 1);
    return {static_cast<int>(std::floor((clip.x / clip.w + 1) / 2 * width)),
            static_cast<int>(std::floor((1 - clip.y / clip.w) / 2 * height))};
}

QColor PictureTest::colorAt(const QImage& image, const Vec3& point) const {
    const QPoint pixel = pixelAt(point);
    EXPECT_TRUE(image.rect().contains(pixel)) << "the point is not in view";
    return image.pixelColor(pixel);
}

double PictureTest::encodedAt(const QImage& image, const Vec3& point) const {
    return static_cast<double>(colorAt(image, point).greenF());
}

double PictureTest::lightAt(const QImage& image, const Vec3& point) const {
    return static_cast<double>(linearLight(static_cast<float>(encodedAt(image, point))));
}

double encoded(double linear) {
    return static_cast<double>(encodedLight(static_cast<float>(linear)));
}

} // namespace vorbel
