// Sorting of a frame into what is drawn in one go.
#include "platform/render/DrawList.h"

#include <glm/gtc/matrix_transform.hpp>
#include <gmock/gmock.h>

namespace vorbel {
namespace {

DrawItem item(Shape shape, Material material = {}, const glm::vec3& place = {}) {
    return {nullptr, std::move(shape), std::move(material), glm::translate(glm::mat4(1), place), 1};
}

TEST(DrawListTest, EqualMeshesAreOneGroupWhateverTheirColours) {
    Frame frame;
    frame.items = {item(Sphere{1}, {.diffuse = colors::systemRed}), item(Box{}),
                   item(Sphere{1}, {.diffuse = colors::systemBlue})};
    const DrawList list = makeDrawList(frame);
    ASSERT_EQ(list.solid.size(), 2U);
    EXPECT_THAT(list.solid[0].items, testing::ElementsAre(0, 2));
    EXPECT_NE(list.instances[0].diffuse, list.instances[2].diffuse);
}

TEST(DrawListTest, DifferentPicturesAreDifferentGroupsOfCutOuts) {
    Frame frame;
    frame.items = {item(Plane{}, {.picture = "A"}), item(Plane{}, {.picture = "B"}),
                   item(Plane{}, {.picture = "A"})};
    const DrawList list = makeDrawList(frame);
    EXPECT_TRUE(list.solid.empty());
    ASSERT_EQ(list.cutOut.size(), 2U);
    EXPECT_EQ(list.cutOut[0].items.size(), 2U);
    EXPECT_EQ(list.cutOut[1].look.picture, "B");
}

TEST(DrawListTest, SolidItemsComeFromNearToFar) {
    Frame frame;
    frame.items = {item(Box{}, {}, {0, 0, -9}), item(Box{}, {}, {0, 0, -2})};
    EXPECT_THAT(makeDrawList(frame).solid[0].items, testing::ElementsAre(1, 0));
}

TEST(DrawListTest, SeeThroughItemsComeFromFarToNear) {
    Frame frame;
    const Material tint{.diffuse = colors::white.withAlpha(0.25F)};
    frame.items = {item(Box{}, tint, {0, 0, -2}), item(Box{}, tint, {0, 0, -9}),
                   item(Box{}, tint, {0, 0, -5})};
    const DrawList list = makeDrawList(frame);
    ASSERT_EQ(list.blended.size(), 3U);
    EXPECT_EQ(list.blended[0].items[0], 1U);
    EXPECT_EQ(list.blended[1].items[0], 2U);
    EXPECT_EQ(list.blended[2].items[0], 0U);
}

TEST(DrawListTest, FadedNodeIsSeeThrough) {
    Frame frame;
    frame.items = {item(Box{})};
    frame.items[0].opacity = 0.5F;
    const DrawList list = makeDrawList(frame);
    ASSERT_EQ(list.blended.size(), 1U);
    EXPECT_EQ(list.instances[0].diffuse.a, 0.5F);
}

TEST(DrawListTest, MovedItemKeepsItsGroup) {
    Frame frame;
    frame.items = {item(Sphere{1}), item(Sphere{1}, {}, {0, 0, -1})};
    DrawList list = makeDrawList(frame);
    frame.items[1] = item(Sphere{1}, {}, {0, 0, -3});
    updateInstances(list, frame, {1});
    EXPECT_EQ(list.instances[1].worldRows[2].w, -3);
    EXPECT_EQ(list.instances[0].worldRows[2].w, 0);
}

TEST(DrawListTest, FloorReachesTheFarPlaneWhereverTheCameraIs) {
    Frame frame;
    frame.camera.world = glm::translate(glm::mat4(1), {100, 1.2F, 1});
    frame.items = {item(Floor{0.05}, {}, {0, -0.05F, 0})};
    const DrawList list = makeDrawList(frame);
    ASSERT_TRUE(list.floor);
    EXPECT_FLOAT_EQ(list.floor->reflectivity, 0.05F);
    EXPECT_EQ(list.floor->plane, glm::vec4(0, 1, 0, 0.05F));
    const Instance& floor = list.floor->instance;
    EXPECT_FLOAT_EQ(floor.worldRows[0].x, frame.camera.zFar);
    EXPECT_FLOAT_EQ(floor.worldRows[0].w, 100) << "its centre is below the camera";
    EXPECT_FLOAT_EQ(floor.worldRows[1].w, -0.05F);
}

TEST(DrawListTest, ColoursBecomeLinearLight) {
    Frame frame;
    frame.items = {item(Box{}, {.diffuse = {0.5F, 0, 1}, .emission = {0, 0.5F, 0}})};
    const DrawList list = makeDrawList(frame);
    EXPECT_NEAR(list.instances[0].diffuse.r, 0.214F, 0.001F);
    EXPECT_NEAR(list.instances[0].emission.g, 0.214F, 0.001F);
    EXPECT_EQ(list.instances[0].diffuse.b, 1);
}

} // namespace
} // namespace vorbel
