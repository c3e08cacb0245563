#include "platform/render/OpenGlFormat.h"

#include <QOpenGLContext>

namespace vorbel {

QSurfaceFormat openGlFormat() {
    QSurfaceFormat format = QSurfaceFormat::defaultFormat();
    if (QOpenGLContext::openGLModuleType() == QOpenGLContext::LibGLES) {
        format.setRenderableType(QSurfaceFormat::OpenGLES);
    }
    if (format.renderableType() == QSurfaceFormat::OpenGLES) {
        format.setVersion(3, 0);
    } else {
        format.setVersion(3, 3);
        format.setProfile(QSurfaceFormat::CoreProfile);
    }
    return format;
}

} // namespace vorbel
