// A small scene to take pictures of, and ways to read them.
#pragma once

#include "platform/render/Frame.h"
#include "platform/resources/Resources.h"
#include "platform/scenegraph/Scene.h"

#include <filesystem>

#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace vorbel {

class PictureTest : public testing::Test {
protected:
    static constexpr int width = 300;
    static constexpr int height = 200;

    // An empty scene with a black background, seen from (0, 2, 4) with a view down on the origin.
    PictureTest();

    // Adds a node with that shape to the scene.
    Node::Ptr add(Shape shape, Material material, const Vec3& position = Vec3(0));

    // Adds the light of the arena: a spot 12 m above the origin with shadows, and ambient light.
    Node::Ptr addLights();

    // Saves a PNG under that name, for materials to show.
    void savePicture(const QImage& image, const std::string& name);

    // Fails the test when there is no OpenGL.
    [[nodiscard]] QImage draw();

    // Where a point of the arena is in the picture.
    [[nodiscard]] QPoint pixelAt(const Vec3& point) const;

    // Of the pixel at a point of the arena, in 0…1.
    [[nodiscard]] double encodedAt(const QImage& image,
                                   const Vec3& point) const; // green, as the screen shows it
    [[nodiscard]] double lightAt(const QImage& image, const Vec3& point) const; // green, as linear light
    [[nodiscard]] QColor colorAt(const QImage& image, const Vec3& point) const;

    Scene scene;

private:
    QTemporaryDir pictures_;
    Resources resources_;
};

// Half a step of the screen's 255, and the noise of half a step.
inline constexpr double colorStep = 1.01 / 255;

// One component of linear light as the screen shows it.
[[nodiscard]] double encoded(double linear);

} // namespace vorbel
