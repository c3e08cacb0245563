// The looks of the aiming pointer.
#include "scene/Pointer.h"
#include "scene/Arena.h"

#include <gtest/gtest.h>

namespace vorbel {

class PointerTest : public testing::Test {
protected:
    Scene scene;

    PointerTest() { arena::addPointer(scene); }
    [[nodiscard]] Node& pointer() const { return *scene.root->findChild(arena::pointerName); }
};

TEST_F(PointerTest, TheClearOneIsWhiteBetweenBlackEdges) {
    arena::setPointerLook(scene, arena::PointerLook::clear);
    ASSERT_EQ(pointer().children().size(), 2u);
    const Geometry& white = *pointer().children()[0]->geometry;
    const Geometry& black = *pointer().children()[1]->geometry;
    EXPECT_EQ(white.material.emission, colors::white);
    EXPECT_EQ(black.material.diffuse, colors::black);
    EXPECT_GT(std::get<Box>(black.shape).width, std::get<Box>(white.shape).width);
    EXPECT_LT(std::get<Box>(black.shape).height, std::get<Box>(white.shape).height)
        << "the white lies on top";
}

TEST_F(PointerTest, ItsPlaceAndWhetherItIsSeenStayAsTheyAre) {
    pointer().opacity = 0.5;
    pointer().setPosition({1, 2, 3});
    arena::setPointerLook(scene, arena::PointerLook::clear);
    EXPECT_EQ(pointer().opacity, 0.5);
    EXPECT_EQ(pointer().position(), (Vec3{1, 2, 3}));
}

TEST_F(PointerTest, TheUsualOneComesBackAsItWas) {
    const Geometry before = *pointer().children()[0]->geometry;
    arena::setPointerLook(scene, arena::PointerLook::clear);
    arena::setPointerLook(scene, arena::PointerLook::usual);
    ASSERT_EQ(pointer().children().size(), 1u);
    EXPECT_EQ(*pointer().children()[0]->geometry, before);
}

TEST_F(PointerTest, ASceneWithoutAPointerStaysWithoutOne) {
    Scene empty;
    arena::setPointerLook(empty, arena::PointerLook::clear);
    EXPECT_EQ(empty.root->findChild(arena::pointerName), nullptr);
}

} // namespace vorbel
