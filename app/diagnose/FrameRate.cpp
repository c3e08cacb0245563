#include "app/diagnose/FrameRate.h"

#include "app/command_line/Output.h"

#include <QCoreApplication>
#include <QQuickWindow>
#include <QTimer>

namespace vorbel {

namespace {

constexpr int duration = 2000;  // ms
constexpr int patience = 20000; // ms until the first frame

} // namespace

FrameRate::FrameRate(ContentView& view, QQuickWindow& window) : window_(window) {
    view.openMenu().setMenuScreen(MenuScreen::hidden);
    view.settings()->setRedAIOn(true);
    view.settings()->setBlueAIOn(true);
    connect(&window, &QQuickWindow::frameSwapped, this, &FrameRate::frameShown, Qt::QueuedConnection);
    QTimer::singleShot(patience, this, &FrameRate::finish);
}

void FrameRate::frameShown() {
    if (!sinceFirst_.isValid()) {
        sinceFirst_.start();
    } else {
        ++frames_;
    }
    if (sinceFirst_.elapsed() >= duration) {
        finish();
    } else {
        window_.update();
    }
}

void FrameRate::finish() {
    const QString size = QStringLiteral("%1 × %2").arg(window_.width()).arg(window_.height());
    const QString drawn = QQuickWindow::sceneGraphBackend() == QLatin1String("software")
                              ? QStringLiteral("without the arena")
                              : QStringLiteral("with the arena");
    const double seconds = sinceFirst_.isValid() ? static_cast<double>(sinceFirst_.elapsed()) / 1000 : 0;
    const QString line =
        seconds > 0 ? QStringLiteral("%1 at %2, %3").arg(frames_ / seconds, 0, 'f', 1).arg(size, drawn)
                    : QStringLiteral("no frame was shown");
    const bool written = isWritten("Frames a second: " + line.toStdString() + "\n", stdout);
    QCoreApplication::exit(written ? 0 : 1);
}

} // namespace vorbel
