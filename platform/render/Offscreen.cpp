#include "platform/render/Offscreen.h"

#include "platform/render/OpenGlFormat.h"
#include "platform/render/Pictures.h"
#include "platform/render/Renderer.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QOpenGLFunctions>

namespace vorbel {

namespace {

QImage drawWith(Renderer& renderer, const Frame& frame, QSize size, std::string& error) {
    QOpenGLFramebufferObject target(size);
    if (!target.isValid()) {
        error = "The graphics driver has no room for a picture of this size.";
        return {};
    }
    renderer.draw(frame, target.handle(), size.width(), size.height());
    return target.toImage().convertToFormat(QImage::Format_RGB32);
}

} // namespace

QImage renderToImage(const Frame& frame, int width, int height, const Resources& resources,
                     std::string& error) {
    QOffscreenSurface surface;
    surface.setFormat(openGlFormat());
    surface.create();
    QOpenGLContext context;
    context.setFormat(openGlFormat());
    if (!context.create() || !context.makeCurrent(&surface)) {
        error = "OpenGL is not available.";
        return {};
    }
    QImage image;
    Pictures pictures(resources);
    pictures.announce(frame);
    if (const auto renderer = Renderer::create(pictures, error)) {
        image = drawWith(*renderer, frame, {width, height}, error);
    }
    return image;
}

} // namespace vorbel
