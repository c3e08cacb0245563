// Meshes in graphics memory, one for each different shape and detail.
#pragma once

#include "platform/render/BatchPlan.h"
#include "platform/render/GlObject.h"

#include <vector>

namespace vorbel {

class MeshCache {
public:
    // Draws the batch with the current program; its instances are at their place in the buffer.
    void draw(QOpenGLExtraFunctions& gl, const Batch& batch, GLuint instanceBuffer);

private:
    struct Uploaded {
        Shape shape;
        Detail detail;
        GlObject vertexArray;
        GlObject vertexBuffer;
        GlObject indexBuffer;
        GLsizei indexCount = 0;
    };
    static Uploaded upload(QOpenGLExtraFunctions& gl, const Shape& shape, Detail detail);
    const Uploaded& find(QOpenGLExtraFunctions& gl, const Shape& shape, Detail detail);

    std::vector<Uploaded> meshes_;
};

} // namespace vorbel
