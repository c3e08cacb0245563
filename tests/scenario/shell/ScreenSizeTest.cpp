// The game on small and on large screens: what a desktop's scaling leaves of one screen stands for both.
#include "tests/scenario/program/Desktop.h"
#include "tests/scenario/program/Program.h"
#include "tests/scenario/shell/GameWindow.h"

#include <QDir>
#include <QPixmap>
#include <QRegularExpression>
#include <QScreen>
#include <QtCore/qmath.h>

#include <gtest/gtest.h>

#include <algorithm>

namespace vorbel {

namespace {

QRect wholeScreen() {
    return QGuiApplication::primaryScreen()->geometry();
}

QColor seenAt(QPoint place) {
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, place.x(), place.y(), 1, 1)
        .toImage()
        .pixelColor(0, 0);
}

} // namespace

// The desktop's scale: 2560 × 1600 pixels are then that much smaller in points of the desktop.
class ScreenSizeTest : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        ASSERT_TRUE(windowManager.isReady());
        movePointer({2559, 1599}); // out of the way
        game.emplace(QStringList(), Program::Environment{{QStringLiteral("QT_SCALE_FACTOR"),
                                                          QString::fromLatin1(GetParam())}});
        window = GameWindow::find();
        ASSERT_TRUE(window) << qUtf8Printable(game->errors());
        ASSERT_TRUE(waitUntil([this] { return decorated().isValid(); }));
    }

    // The window with what the window manager puts around it; not valid before it does.
    [[nodiscard]] QRect decorated() const {
        static const QRegularExpression extents(
            QStringLiteral("EXTENTS\\(CARDINAL\\) = (\\d+), (\\d+), (\\d+), (\\d+)"));
        const auto found = extents.match(window->decoration());
        const auto side = [&found](int index) { return found.captured(index).toInt(); };
        return found.hasMatch() ? window->frame().adjusted(-side(1), -side(3), side(2), side(4)) : QRect();
    }
    // How many pixels of the screen a point of the interface takes: there are 1200 × 800 at least.
    [[nodiscard]] double point() const {
        const QSize size = window->frame().size();
        return std::min(size.width() / 1200.0, size.height() / 800.0);
    }

    // A program places its windows by whole points of the desktop, which need not be whole pixels: so many pixels
    // may be missing.
    [[nodiscard]] static int inexactness() { return qCeil(QByteArray(GetParam()).toDouble()) - 1; }

    [[nodiscard]] bool isAt(const QRect& place) const {
        const QRect frame = window->frame();
        return frame.size() == place.size() &&
               (frame.topLeft() - place.topLeft()).manhattanLength() <= 2 * inexactness();
    }
    [[nodiscard]] bool coversScreen() const {
        const QRect screen = wholeScreen();
        const QRect frame = window->frame();
        return screen.contains(frame) &&
               frame.contains(screen.adjusted(0, 0, -inexactness(), -inexactness()));
    }

    // The window shows the message, at its lower edge, and the frame of the side that is on turn, at its upper.
    [[nodiscard]] bool showsDisplay() const {
        return waitUntil([this] {
            const QRect frame = window->frame();
            const QPointF message(frame.width() / 2.0, frame.height() - 26 * point());
            const QPointF side = QPointF(redBorder) * point();
            return alike(seenAt(frame.topLeft() + message.toPoint()), QColor(242, 242, 242)) &&
                   alike(seenAt(frame.topLeft() + side.toPoint()), red);
        });
    }
    void keepPicture(const QString& name) const {
        const QString folder = QStringLiteral(VORBEL_PICTURES);
        QDir().mkpath(folder);
        QGuiApplication::primaryScreen()->grabWindow(0).save(
            QStringLiteral("%1/scale-%2-%3.png").arg(folder, QString::fromLatin1(GetParam()), name));
    }

    WindowManager windowManager;
    std::optional<Program> game;
    std::optional<GameWindow> window;
};

TEST_P(ScreenSizeTest, WindowAndDecorationFitAndSoDoesFullScreenAndTheWayBack) {
    EXPECT_TRUE(waitUntil([this] { return wholeScreen().contains(decorated()); }, 5'000))
        << decorated().right() << " × " << decorated().bottom();
    Desktop::instance().startMatch();
    EXPECT_TRUE(showsDisplay());
    keepPicture(QStringLiteral("window"));
    const QRect frame = window->frame();
    const QString decoration = window->decoration();
    Desktop::instance().press(QStringLiteral("F11"));
    EXPECT_TRUE(waitUntil([this] { return coversScreen(); }));
    keepPicture(QStringLiteral("full-screen"));
    Desktop::instance().press(QStringLiteral("Escape"));
    EXPECT_TRUE(waitUntil([&] { return isAt(frame) && window->decoration() == decoration; }))
        << window->frame().left() << ", " << window->frame().top();
    EXPECT_TRUE(showsDisplay());
    EXPECT_EQ(game->errors(), QString());
}

INSTANTIATE_TEST_SUITE_P(Scales, ScreenSizeTest, testing::Values("1", "1.5", "1.874", "2", "2.667", "3.2"));

} // namespace vorbel
