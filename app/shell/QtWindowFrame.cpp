#include "app/shell/QtWindowFrame.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

namespace vorbel {

namespace {

bool clientPlacesWindows() {
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

} // namespace

QtWindowFrame::QtWindowFrame(QWindow& window) : window_(window) {
    connect(&window_, &QWindow::screenChanged, this, [this](QScreen* screen) {
        watch(screen);
        emit screenChanged();
    });
    watch(window_.screen());
}

void QtWindowFrame::watch(QScreen* screen) {
    disconnect(watched_);
    if (screen != nullptr) {
        watched_ = connect(screen, &QScreen::geometryChanged, this, &QtWindowFrame::screenChanged);
    }
}

bool QtWindowFrame::isShown() const {
    return window_.isVisible();
}

QRect QtWindowFrame::frame() const {
    return window_.geometry();
}

WindowStyle QtWindowFrame::style() const {
    return {window_.flags(), window_.windowStates()};
}

QRect QtWindowFrame::screen() const {
    const QScreen* own = window_.screen();
    const QScreen* screen = own != nullptr ? own : QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->geometry() : QRect();
}

std::vector<QRect> QtWindowFrame::screens() const {
    std::vector<QRect> all;
    for (const QScreen* screen : QGuiApplication::screens()) {
        all.push_back(screen->geometry());
    }
    return all;
}

WindowStyle QtWindowFrame::coveringStyle() const {
    return clientPlacesWindows() ? WindowStyle{window_.flags() | Qt::FramelessWindowHint, Qt::WindowNoState}
                                 : WindowStyle{window_.flags(), Qt::WindowFullScreen};
}

void QtWindowFrame::setStyle(const WindowStyle& style) {
    if (window_.windowStates() != style.states) {
        window_.setWindowStates(style.states);
    }
    if (window_.flags() != style.flags) {
        window_.setFlags(style.flags);
    }
}

// Where a client may not place its windows, the desktop gives back the former size with the former state, if nobody
// has changed the size meanwhile.
void QtWindowFrame::setFrame(const QRect& frame) {
    if (clientPlacesWindows()) {
        window_.setGeometry(frame);
    }
}

} // namespace vorbel
