#include "app/window/Display.h"

#include "platform/render/OpenGlFormat.h"

#include <QOpenGLContext>
#include <QQuickGraphicsConfiguration>
#include <QQuickWindow>
#include <QStringList>
#include <QSurfaceFormat>

#include <algorithm>
#include <cstdlib>

namespace vorbel {

namespace {

// What the toolkit warned of since the guard was made. A function to be called back gets no state of its own.
QStringList& warnings() {
    static QStringList all;
    return all;
}

QtMessageHandler& formerHandler() {
    static QtMessageHandler former = nullptr;
    return former;
}

// In the words of the X11 and of the Wayland plug-in.
bool saysThatNoDisplayIsReached(const QString& warning) {
    return warning.contains(QLatin1String("could not connect to display")) ||
           warning.contains(QLatin1String("Failed to create wl_display"));
}

// The toolkit's last word is the same whatever it failed at; its warnings say what that was.
QString reasonToEnd(const QString& lastWord) {
    if (std::ranges::any_of(warnings(), saysThatNoDisplayIsReached)) {
        return QStringLiteral("no display can be reached; set DISPLAY or WAYLAND_DISPLAY, or start ./play, "
                              "which brings its own");
    }
    return (warnings() + QStringList(lastWord)).join(QStringLiteral("; ")).simplified();
}

void endWhenStartFails(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type == QtFatalMsg) {
        qInstallMessageHandler(formerHandler());
        qCritical("%s", qUtf8Printable(reasonToEnd(message)));
        std::_Exit(EXIT_FAILURE);
    }
    warnings().append(message);
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
    formerHandler() = qInstallMessageHandler(endWhenStartFails);
}

DisplayGuard::~DisplayGuard() {
    qInstallMessageHandler(formerHandler());
    warnings().clear();
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
