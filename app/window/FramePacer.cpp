#include "app/window/FramePacer.h"

#include <QQuickWindow>
#include <QScreen>

#include <algorithm>

namespace vorbel {

namespace {

constexpr qint64 lostAfter = 3000; // ms: longer than the slowest machine draws
constexpr double millisecondsPerSecond = 1000;

} // namespace

FramePacer::FramePacer(QQuickWindow& window) : window_(window) {
    next_.setSingleShot(true);
    next_.setTimerType(Qt::PreciseTimer);
    connect(&next_, &QTimer::timeout, &window_, &QQuickWindow::update);
}

void FramePacer::request() {
    wanted_ = true;
    if (!drawing_ && !next_.isActive()) {
        drawOnTime();
    }
}

void FramePacer::frameBegan() {
    drawing_ = true;
    wanted_ = false;
    sinceBegin_.start();
}

void FramePacer::frameShown() {
    drawing_ = false;
    emit idle();
    if (wanted_) {
        drawOnTime();
    }
}

void FramePacer::giveUpOnLostFrame() {
    if (drawing_ && sinceBegin_.elapsed() > lostAfter) {
        frameShown();
    }
}

void FramePacer::drawOnTime() {
    const QScreen* screen = window_.screen();
    const double rate = screen != nullptr ? std::max(screen->refreshRate(), 1.0) : 60.0;
    const auto period = static_cast<qint64>(millisecondsPerSecond / rate);
    const qint64 wait = sinceBegin_.isValid() ? period - sinceBegin_.elapsed() : 0;
    next_.start(static_cast<int>(std::max<qint64>(wait, 0)));
}

} // namespace vorbel
