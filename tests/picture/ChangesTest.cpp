// Drawing only what changed shows the same as drawing everything.
#include "platform/render/Pictures.h"
#include "platform/render/Renderer.h"
#include "platform/resources/Resources.h"
#include "rules/CourtGeometry.h"
#include "scene/Ball.h"
#include "tests/picture/OffscreenTarget.h"
#include "tests/picture/RollingBalls.h"

#include <algorithm>
#include <cstdlib>

#include <gtest/gtest.h>

namespace vorbel {
namespace {

// An edge that passes exactly through one of a pixel's four samples may fall to either side of it, depending
// on where the pixel is in the sheet. Such pixels are rare; all others agree to the step.
constexpr int oneSample = 80; // steps of 255
constexpr int strayPixels = 4;

class ChangesTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(target.works()) << "no OpenGL";
        ASSERT_EQ(QOpenGLContext::currentContext()->isOpenGLES(),
                  qEnvironmentVariableIsSet("VORBEL_OPENGL_ES"));
        changes = create(Redraw::changes);
        all = create(Redraw::all);
        ASSERT_TRUE(changes && all);
    }

    std::unique_ptr<Renderer> create(Redraw redraw) {
        std::string error;
        auto renderer = Renderer::create(pictures, error, redraw);
        EXPECT_TRUE(renderer) << error;
        return renderer;
    }

    QImage drawWith(Renderer& renderer, const Frame& frame) {
        renderer.draw(frame, target.framebuffer(), target.width(), target.height());
        return target.image();
    }

    // Draws the frame both ways.
    void expectSame(const Frame& frame, const std::string& when) {
        const QImage actual = drawWith(*changes, frame);
        const QImage wanted = drawWith(*all, frame);
        int worst = 0;
        int stray = 0;
        for (int y = 0; y < wanted.height(); ++y) {
            for (int x = 0; x < wanted.width(); ++x) {
                const QRgb a = actual.pixel(x, y);
                const QRgb b = wanted.pixel(x, y);
                const int off = std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                                          std::abs(qBlue(a) - qBlue(b))});
                worst = std::max(worst, off);
                stray += off > 1 ? 1 : 0;
            }
        }
        EXPECT_LE(worst, oneSample) << when;
        EXPECT_LE(stray, strayPixels) << when;
    }

    [[nodiscard]] long drawnPixels() const { return changes->lastEffort().pixels; }
    [[nodiscard]] long allPixels() const { return static_cast<long>(target.width()) * target.height(); }

    Resources resources;
    Pictures pictures{resources};
    OffscreenTarget target{600, 400};
    RollingBalls arena;
    std::unique_ptr<Renderer> changes;
    std::unique_ptr<Renderer> all;
};

TEST_F(ChangesTest, WholeThrowOfThirteenBallsLeavesNoTrailsAndNoStaleShadows) {
    for (int tick = 0; tick < 200; ++tick) {
        arena.step();
        const Frame frame = arena.frame(0.5);
        if (tick % 12 == 0) {
            expectSame(frame, "tick " + std::to_string(tick));
            EXPECT_LT(drawnPixels(), tick == 0 ? allPixels() + 1 : allPixels() / 3);
        } else {
            changes->draw(frame, target.framebuffer(), target.width(), target.height());
        }
    }
}

TEST_F(ChangesTest, NothingIsDrawnWhenNothingMoves) {
    const Frame frame = arena.frame(1);
    drawWith(*changes, frame);
    EXPECT_EQ(drawnPixels(), allPixels());
    drawWith(*changes, frame);
    EXPECT_EQ(drawnPixels(), 0);
    EXPECT_EQ(changes->lastEffort().texels, 0);
    expectSame(frame, "unchanged");
}

TEST_F(ChangesTest, WindowOfAnotherSize) {
    expectSame(arena.frame(1), "before");
    target.resize(450, 380);
    expectSame(arena.frame(1), "smaller");
    arena.step();
    expectSame(arena.frame(1), "and moved");
    target.resize(640, 400);
    expectSame(arena.frame(1), "larger");
}

TEST_F(ChangesTest, MultisampledWindowShowsTheSame) {
    const QImage plain = drawWith(*changes, arena.frame(1));
    target.resize(target.width(), target.height(), 4);
    EXPECT_EQ(drawWith(*changes, arena.frame(1)), plain);
}

TEST_F(ChangesTest, NewEndTakesTheBallsAway) {
    for (int tick = 0; tick < 40; ++tick) {
        arena.step();
    }
    expectSame(arena.frame(1), "end");
    for (const Node::Ptr& ball : arena.balls) {
        arena.scene.root->removeChild(*ball);
    }
    expectSame(arena.frame(1), "new end");
    EXPECT_LT(drawnPixels(), allPixels() / 2);
}

TEST_F(ChangesTest, JackIsPutBackOnTheCross) {
    expectSame(arena.frame(1), "before");
    arena.scene.root->removeChild(*arena.balls[0]);
    arena.scene.root->addChild(
        makeBall(BallColor::jack, {0, court::restingHeight, -6.25}, PhysicsBody::Type::dynamic));
    expectSame(arena.frame(1), "re-spotted");
}

TEST_F(ChangesTest, BallThatCameUnseenIsShownWhenItRollsIntoView) {
    expectSame(arena.frame(1), "before");
    const Node::Ptr ball = makeBall(BallColor::red, {0, court::restingHeight, 20}, PhysicsBody::Type::fixed);
    arena.scene.root->addChild(ball);
    expectSame(arena.frame(1), "behind the camera");
    EXPECT_EQ(drawnPixels(), 0);
    ball->setPosition({0.4, court::restingHeight, -1});
    expectSame(arena.frame(1), "in view");
}

TEST_F(ChangesTest, PointerTurnsAndFades) {
    const Node::Ptr pointer = arena.scene.root->findChild("pointer");
    ASSERT_TRUE(pointer);
    expectSame(arena.frame(1), "hidden");
    pointer->opacity = 1;
    for (const double angle : {0.0, 0.1, 0.4, -0.3}) {
        pointer->setEulerAngles({0.1, angle, 0});
        expectSame(arena.frame(1), "turned by " + std::to_string(angle));
    }
    for (const double opacity : {0.7, 0.3, 0.0}) {
        pointer->opacity = opacity;
        pointer->setEulerAngles({0, opacity, 0});
        expectSame(arena.frame(1), "faded to " + std::to_string(opacity));
    }
}

TEST_F(ChangesTest, BallBesideTheCourtIsMirroredInTheFloor) {
    const Node::Ptr& ball = arena.balls[3];
    for (const double x : {3.1, 3.2, 3.4, 3.7}) {
        ball->setPosition({x, 0.2, -4});
        expectSame(arena.frame(1), "at " + std::to_string(x));
    }
}

TEST_F(ChangesTest, MarksAndLinesMoveWithTheirBallsAndGoWithoutATrace) {
    const QImage plain = drawWith(*changes, arena.frame(1));
    setBallLook(arena.scene, {.marked = true, .outlined = true});
    expectSame(arena.frame(1), "marked");
    EXPECT_NE(drawWith(*changes, arena.frame(1)), plain);
    setBallLook(arena.scene, {});
    EXPECT_EQ(drawWith(*changes, arena.frame(1)), plain);
    setBallLook(arena.scene, {.outlined = true});
    for (int tick = 1; tick <= 60; ++tick) {
        arena.step();
        if (tick % 12 == 0) {
            expectSame(arena.frame(0.5), "tick " + std::to_string(tick));
        } else {
            drawWith(*changes, arena.frame(0.5));
        }
    }
}

TEST_F(ChangesTest, RendererMadeAnewStartsFromNothing) {
    drawWith(*changes, arena.frame(1));
    arena.step();
    changes = create(Redraw::changes);
    expectSame(arena.frame(1), "in a new renderer");
    EXPECT_EQ(drawnPixels(), allPixels());
}

} // namespace
} // namespace vorbel
