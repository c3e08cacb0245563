#include "app/Display.h"

#include "platform/render/OpenGlFormat.h"

#include <QOpenGLContext>
#include <QQuickGraphicsConfiguration>
#include <QQuickWindow>
#include <QSurfaceFormat>

#include <cstdio>
#include <cstdlib>

namespace vorbel {

namespace {

void endWithoutDisplay(QtMsgType type, const QMessageLogContext&, const QString&) {
    if (type == QtFatalMsg) {
        std::fputs(
            "vorbel: no display can be reached; set DISPLAY or WAYLAND_DISPLAY, or start ./play, which "
            "brings its own\n",
            stderr);
        std::_Exit(EXIT_FAILURE);
    }
}

// The arena is drawn into pictures of its own and the rest from back to front, so the window needs no depth.
QSurfaceFormat wantedFormat() {
    QSurfaceFormat format = openGlFormat();
    format.setDepthBufferSize(0);
    format.setStencilBufferSize(0);
    return format;
}

void ignoreMessage(QtMsgType, const QMessageLogContext&, const QString&) {}

// Says nothing: what cannot be drawn is told by the view that draws it.
bool canDraw(const QSurfaceFormat& wanted) {
    const QtMessageHandler former = qInstallMessageHandler(ignoreMessage);
    QOpenGLContext context;
    context.setFormat(wanted);
    const bool works = context.create() && context.format().version() >= wanted.version();
    qInstallMessageHandler(former);
    return works;
}

} // namespace

DisplayGuard::DisplayGuard() {
    qInstallMessageHandler(endWithoutDisplay);
}

DisplayGuard::~DisplayGuard() {
    qInstallMessageHandler(nullptr);
}

void chooseGraphics() {
    // The one picture among texts and shapes would otherwise be put into a shared one of 8 MB.
    qputenv("QSG_ATLAS_SIZE_LIMIT", "1");
    const QSurfaceFormat format = wantedFormat();
    if (canDraw(format)) {
        QSurfaceFormat::setDefaultFormat(format);
        QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
    } else {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    }
}

void prepareWindow(QQuickWindow& window) {
    QQuickGraphicsConfiguration configuration = window.graphicsConfiguration();
    configuration.setDepthBufferFor2D(false);
    window.setGraphicsConfiguration(configuration);
}

} // namespace vorbel
