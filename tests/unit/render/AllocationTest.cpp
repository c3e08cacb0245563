// Frames are copied and followed for hours: that must not take memory each time.
#include "platform/render/TrackedFrame.h"
#include "platform/scenegraph/Scene.h"
#include "tests/unit/render/AllocationCounter.h"

#include <gtest/gtest.h>

namespace vorbel {
namespace {

// A scene with every kind of memory in it: long picture names, outlines, a tree.
struct Stand {
    Scene scene;
    std::vector<Node::Ptr> balls;

    Stand() {
        add(Floor{}, {});
        add(Extrusion{{{0, 0}, {1, 0}, {0, 1}}, 0.1}, {});
        add(Plane{}, {.picture = "APictureWithALongName"});
        const Node::Ptr group = add(Box{}, {});
        for (int i = 0; i < 13; ++i) {
            balls.push_back(std::make_shared<Node>(Geometry{Sphere{0.04}, {}}));
            balls.back()->setPosition({0.1 * i, 0.04, -2});
            group->addChild(balls.back());
        }
    }

    Node::Ptr add(Shape shape, Material material) {
        auto node = std::make_shared<Node>(Geometry{std::move(shape), std::move(material)});
        scene.root->addChild(node);
        return node;
    }

    void roll(double distance) {
        for (const Node::Ptr& ball : balls) {
            ball->setPosition(ball->position() + Vec3(0, 0, -distance));
        }
    }
};

TEST(AllocationTest, CountsWhatIsTaken) {
    const int before = allocationCount();
    const auto taken = std::make_unique<int>(1);
    EXPECT_EQ(allocationCount(), before + 1) << *taken;
}

TEST(AllocationTest, CopyingAMovingSceneTakesNoMemory) {
    Stand stand;
    Frame frame = makeFrame(stand.scene, 1);
    const int before = allocationCount();
    for (int tick = 0; tick < 10; ++tick) {
        stand.roll(0.02);
        copyScene(stand.scene, 0.5, frame);
    }
    EXPECT_EQ(allocationCount(), before);
    EXPECT_EQ(frame.items.size(), 17U);
}

TEST(AllocationTest, FollowingAMovingSceneTakesNoMemoryAfterTheFirstMovement) {
    Stand stand;
    TrackedFrame tracked(8192);
    Frame frame = makeFrame(stand.scene, 1);
    tracked.follow(frame, 600, 400);
    tracked.markDrawn();
    stand.roll(0.02);
    copyScene(stand.scene, 1, frame);
    tracked.follow(frame, 600, 400);
    tracked.markDrawn();
    const int before = allocationCount();
    for (int tick = 0; tick < 10; ++tick) {
        stand.roll(0.02);
        copyScene(stand.scene, 1, frame);
        EXPECT_FALSE(tracked.follow(frame, 600, 400).nothing());
        tracked.markDrawn();
    }
    EXPECT_EQ(allocationCount(), before);
}

} // namespace
} // namespace vorbel
