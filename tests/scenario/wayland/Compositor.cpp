#include "tests/scenario/wayland/Compositor.h"

#include "tests/scenario/program/Desktop.h"

#include <QFile>
#include <QImage>
#include <QPixmap>
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

} // namespace

bool Compositor::isInstalled() {
    return !QStandardPaths::findExecutable(QStringLiteral("weston")).isEmpty();
}

Compositor::Compositor(QSize screen, int scale) : screen_(QPoint(0, 0), screen * scale) {
    QFile file(place_.filePath(QStringLiteral("weston.ini")));
    if (file.open(QIODevice::WriteOnly)) {
        file.write(settings);
        file.close();
    }
    process_.start(QStringLiteral("weston"),
                   {QStringLiteral("--backend=x11-backend.so"), QStringLiteral("--use-pixman"),
                    QStringLiteral("--config=") + file.fileName(), QStringLiteral("--socket=vorbel-test"),
                    QStringLiteral("--width=%1").arg(screen.width()),
                    QStringLiteral("--height=%1").arg(screen.height()),
                    QStringLiteral("--scale=%1").arg(scale),
                    QStringLiteral("--log=") + place_.filePath(QStringLiteral("log"))});
}

Compositor::~Compositor() {
    process_.terminate();
    process_.waitForFinished();
}

bool Compositor::isReady() {
    process_.waitForStarted();
    QProcess::execute(QStringLiteral("xdotool"),
                      {QStringLiteral("mousemove"), QStringLiteral("1"), QStringLiteral("1")});
    const bool shown = waitUntil([this] {
        const QImage now = picture();
        return isBackground(now.pixel(now.width() - 1, 0)) &&
               isBackground(now.pixel(now.width() - 1, now.height() - 1));
    });
    return shown && process_.state() == QProcess::Running;
}

Program::Environment Compositor::environment() const {
    return {{QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("wayland")},
            {QStringLiteral("WAYLAND_DISPLAY"), QStringLiteral("vorbel-test")},
            {QStringLiteral("DISPLAY"), QString()}};
}

QImage Compositor::picture() const {
    const QPixmap all = QGuiApplication::primaryScreen()->grabWindow(0);
    return all.toImage().copy(screen_);
}

QRect Compositor::covered() const {
    const QImage now = picture().convertToFormat(QImage::Format_RGB32);
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

} // namespace vorbel
