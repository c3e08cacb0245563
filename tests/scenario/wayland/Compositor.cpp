#include "tests/scenario/wayland/Compositor.h"

#include "tests/scenario/program/Desktop.h"

#include <QFile>
#include <QImage>
#include <QPixmap>
#include <QRegularExpression>
#include <QScreen>
#include <QStandardPaths>

namespace vorbel {

namespace {

constexpr char settings[] = "[core]\nidle-time=0\n[shell]\npanel-position=none\nlocking=false\n"
                            "startup-animation=none\nanimation=none\nbackground-color=0xff336699\n"
                            "background-type=tile\nbackground-image=/dev/null\n";
constexpr int pointer = 64; // pixels that it may take up in its corner

bool isBackground(QRgb color) {
    return (color & 0xffffff) == 0x336699;
}

void xdotool(const QStringList& arguments) {
    QProcess::execute(QStringLiteral("xdotool"), arguments);
}

void movePointer(QPoint place) {
    xdotool({QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y())});
}

// Empty before there is one. Its title is told in a way that xdotool does not know.
QString windowOf(std::size_t screen) {
    QProcess tool;
    tool.start(QStringLiteral("xwininfo"), {QStringLiteral("-root"), QStringLiteral("-tree")});
    tool.waitForFinished();
    const QRegularExpression titled(QStringLiteral("(0x[0-9a-f]+) \"Weston Compositor - X%1\"").arg(screen));
    return titled.match(QString::fromUtf8(tool.readAllStandardOutput())).captured(1);
}

QByteArray section(std::size_t number, const Compositor::Screen& screen) {
    return QStringLiteral("[output]\nname=X%1\nmode=%2x%3\nscale=%4\n")
        .arg(number)
        .arg(screen.size.width())
        .arg(screen.size.height())
        .arg(screen.scale)
        .toUtf8();
}

} // namespace

bool Compositor::isInstalled() {
    return !QStandardPaths::findExecutable(QStringLiteral("weston")).isEmpty();
}

Compositor::Compositor(const std::vector<Screen>& screens) {
    QFile file(place_.filePath(QStringLiteral("weston.ini")));
    if (file.open(QIODevice::WriteOnly)) {
        file.write(settings);
        int left = 0;
        for (const Screen& screen : screens) {
            file.write(section(screens_.size(), screen));
            left += screens_.emplace_back(QPoint(left, 0), screen.size * screen.scale).width();
        }
        file.close();
    }
    process_.start(QStringLiteral("weston"),
                   {QStringLiteral("--backend=x11-backend.so"), QStringLiteral("--use-pixman"),
                    QStringLiteral("--config=") + file.fileName(), QStringLiteral("--socket=vorbel-test"),
                    QStringLiteral("--output-count=%1").arg(screens.size()),
                    QStringLiteral("--log=") + place_.filePath(QStringLiteral("log"))});
}

Compositor::~Compositor() {
    process_.terminate();
    process_.waitForFinished();
}

// Without a window manager all of them come up in the corner.
void Compositor::placeScreens() const {
    for (std::size_t number = 0; number < screens_.size(); ++number) {
        QString window;
        static_cast<void>(waitUntil([&] { return !(window = windowOf(number)).isEmpty(); }));
        xdotool({QStringLiteral("windowmove"), window, QString::number(screens_[number].left()),
                 QStringLiteral("0")});
    }
    movePointer({1, 1});
}

bool Compositor::isEmpty(std::size_t number) const {
    const QImage now = picture(number);
    return isBackground(now.pixel(now.width() - 1, 0)) &&
           isBackground(now.pixel(now.width() - 1, now.height() - 1));
}

bool Compositor::isReady() {
    process_.waitForStarted();
    placeScreens();
    bool shown = true;
    for (std::size_t number = 0; number < screens_.size(); ++number) {
        shown = shown && waitUntil([this, number] { return isEmpty(number); });
    }
    return shown && process_.state() == QProcess::Running;
}

Program::Environment Compositor::environment() const {
    return {{QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("wayland")},
            {QStringLiteral("WAYLAND_DISPLAY"), QStringLiteral("vorbel-test")},
            {QStringLiteral("DISPLAY"), QString()}};
}

QImage Compositor::picture(std::size_t number) const {
    const QPixmap all = QGuiApplication::primaryScreen()->grabWindow(0);
    return all.toImage().copy(screens_.at(number));
}

QRect Compositor::covered(std::size_t number) const {
    const QImage now = picture(number).convertToFormat(QImage::Format_RGB32);
    QRect area;
    for (int y = 0; y < now.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(now.constScanLine(y));
        for (int x = y < pointer ? pointer : 0; x < now.width(); ++x) {
            if (!isBackground(line[x])) {
                area.setCoords(area.isNull() ? x : std::min(area.left(), x), area.isNull() ? y : area.top(),
                               area.isNull() ? x : std::max(area.right(), x), y);
            }
        }
    }
    return area;
}

// A hand moves in steps, and so must this: the compositor follows the first of them only then.
void Compositor::dragWindow(QPoint from, QPoint way) const {
    constexpr int steps = 8;
    xdotool({QStringLiteral("keydown"), QStringLiteral("super")});
    movePointer(from);
    xdotool({QStringLiteral("mousedown"), QStringLiteral("1")});
    for (int step = 1; step <= steps; ++step) {
        movePointer(from + way * step / steps);
    }
    xdotool({QStringLiteral("mouseup"), QStringLiteral("1")});
    xdotool({QStringLiteral("keyup"), QStringLiteral("super")});
}

} // namespace vorbel
