// Ownership of OpenGL objects.
#pragma once

#include <utility>

#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>

namespace vorbel {

// The functions of the current context, which there must be.
inline QOpenGLExtraFunctions& currentGl() {
    return *QOpenGLContext::currentContext()->extraFunctions();
}

// Owns one OpenGL object; 0 stands for none. When no context is current at its end, the object went with
// its context.
class GlObject {
public:
    using Deleter = void (*)(QOpenGLExtraFunctions&, GLuint);

    GlObject() = default;
    GlObject(GLuint id, Deleter deleter) : id_(id), deleter_(deleter) {}
    GlObject(GlObject&& other) noexcept : id_(std::exchange(other.id_, 0)), deleter_(other.deleter_) {}
    GlObject& operator=(GlObject&& other) noexcept {
        std::swap(id_, other.id_);
        std::swap(deleter_, other.deleter_);
        return *this;
    }
    ~GlObject() {
        if (id_ != 0 && QOpenGLContext::currentContext() != nullptr) {
            deleter_(currentGl(), id_);
        }
    }

    [[nodiscard]] GLuint id() const { return id_; }

private:
    GLuint id_ = 0;
    Deleter deleter_ = nullptr;
};

[[nodiscard]] GlObject newBuffer(QOpenGLExtraFunctions& gl);
[[nodiscard]] GlObject newTexture(QOpenGLExtraFunctions& gl);
[[nodiscard]] GlObject newVertexArray(QOpenGLExtraFunctions& gl);
[[nodiscard]] GlObject newFramebuffer(QOpenGLExtraFunctions& gl);
[[nodiscard]] GlObject newRenderbuffer(QOpenGLExtraFunctions& gl);

} // namespace vorbel
