#include "platform/render/DriverFacts.h"

#include "platform/render/OpenGlFormat.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>

namespace vorbel {

namespace {

std::string named(QOpenGLFunctions& gl, GLenum what) {
    const GLubyte* name = gl.glGetString(what);
    return name == nullptr ? "unknown" : std::string(reinterpret_cast<const char*>(name));
}

} // namespace

std::string driverFacts() {
    const QSurfaceFormat wanted = openGlFormat();
    QOpenGLContext context;
    context.setFormat(wanted);
    if (!context.create()) {
        return "none";
    }
    QOffscreenSurface surface;
    surface.setFormat(context.format());
    surface.create();
    if (!context.makeCurrent(&surface)) {
        return "none";
    }
    QOpenGLFunctions& gl = *context.functions();
    const std::string tooOld =
        context.format().version() < wanted.version() ? " (too old for the arena)" : "";
    std::string facts = (context.isOpenGLES() ? "OpenGL ES " : "OpenGL ") + named(gl, GL_VERSION) + tooOld +
                        ", " + named(gl, GL_RENDERER) + ", " + named(gl, GL_VENDOR);
    context.doneCurrent();
    return facts;
}

} // namespace vorbel
