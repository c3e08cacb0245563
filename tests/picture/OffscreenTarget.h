// An OpenGL context with a framebuffer, without a window.
#pragma once

#include "platform/render/OpenGlFormat.h"

#include <QImage>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QOpenGLFunctions>

#include <memory>

namespace vorbel {

// Current from the start, with the renderer's kind of OpenGL. There must be a QGuiApplication.
class OffscreenTarget {
public:
    OffscreenTarget(int width, int height) : works_(madeCurrent()) {
        if (works_) {
            resize(width, height);
        }
    }

    [[nodiscard]] bool works() const { return works_; }
    void resize(int width, int height, int samples = 0) {
        QOpenGLFramebufferObjectFormat format;
        format.setSamples(samples);
        framebuffer_ = std::make_unique<QOpenGLFramebufferObject>(width, height, format);
    }

    [[nodiscard]] unsigned framebuffer() const { return framebuffer_->handle(); }
    [[nodiscard]] int width() const { return framebuffer_->width(); } // pixels
    [[nodiscard]] int height() const { return framebuffer_->height(); }

    [[nodiscard]] QImage image() const {
        return framebuffer_->toImage().convertToFormat(QImage::Format_RGB32);
    }
    void finish() { context_.functions()->glFinish(); } // waits until all is drawn

private:
    bool madeCurrent() {
        const QSurfaceFormat format = openGlFormat();
        surface_.setFormat(format);
        surface_.create();
        context_.setFormat(format);
        return context_.create() && context_.makeCurrent(&surface_);
    }

    QOffscreenSurface surface_;
    QOpenGLContext context_;
    std::unique_ptr<QOpenGLFramebufferObject> framebuffer_;
    bool works_;
};

} // namespace vorbel
