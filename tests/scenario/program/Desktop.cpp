#include "tests/scenario/program/Desktop.h"

#include "tests/WaitUntil.h"

#include <QPixmap>
#include <QProcess>
#include <QScreen>

#include <cstdlib>

namespace vorbel {

namespace {

constexpr std::chrono::milliseconds lookAgainAfter{20};

bool runTool(const QStringList& arguments) {
    QProcess tool;
    tool.start(QStringLiteral("xdotool"), arguments);
    return tool.waitForFinished(patience) && tool.exitStatus() == QProcess::NormalExit &&
           tool.exitCode() == 0;
}

} // namespace

Desktop& Desktop::instance() {
    static Desktop desktop;
    return desktop;
}

Desktop::Desktop() = default;

QImage Desktop::picture() const {
    return QGuiApplication::primaryScreen()->grabWindow(0, 0, 0, 1200, 800).toImage();
}

void Desktop::press(const QString& key) const {
    runTool({QStringLiteral("key"), key});
}

void Desktop::hold(const QString& key) const {
    runTool({QStringLiteral("keydown"), key});
}

void Desktop::letGo(const QString& key) const {
    runTool({QStringLiteral("keyup"), key});
}

bool Desktop::pressUntilChanged(const QString& key, const QRect& part) const {
    const QImage before = picture().copy(part);
    press(key);
    return waitUntil([&] { return picture().copy(part) != before; });
}

// A window that is just coming or going cannot take the keyboard: the tool fails at once, and succeeds later.
bool Desktop::focusGame() const {
    return waitUntil([] {
        return runTool({QStringLiteral("search"), QStringLiteral("--sync"), QStringLiteral("--onlyvisible"),
                        QStringLiteral("--name"), QStringLiteral("^VORBEL$"), QStringLiteral("windowfocus"),
                        QStringLiteral("--sync")});
    });
}

void Desktop::startMatch() const {
    press(QStringLiteral("Return"));
    // From France over three countries to the two buttons behind the last.
    for (int back = 0; back < 5; ++back) {
        press(QStringLiteral("shift+Tab"));
    }
    press(QStringLiteral("Return"));
    press(QStringLiteral("Return"));
}

bool alike(const QColor& a, const QColor& b) {
    constexpr int tolerance = 24; // of 255, in each channel
    return std::abs(a.red() - b.red()) < tolerance && std::abs(a.green() - b.green()) < tolerance &&
           std::abs(a.blue() - b.blue()) < tolerance;
}

bool alike(const QImage& a, const QImage& b) {
    if (a.size() != b.size()) {
        return false;
    }
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y) && !alike(a.pixelColor(x, y), b.pixelColor(x, y))) {
                return false;
            }
        }
    }
    return true;
}

bool waitUntil(const std::function<bool()>& condition, int milliseconds) {
    return waitUntil(condition, std::chrono::milliseconds(milliseconds), lookAgainAfter);
}

} // namespace vorbel
