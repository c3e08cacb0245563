#include "platform/render/MeshCache.h"

#include "platform/render/Mesh.h"

#include <algorithm>
#include <cstdint>

namespace vorbel {

namespace {

struct Attribute {
    GLuint location;
    GLint components;
    std::size_t offset;
};

constexpr Attribute vertexAttributes[] = {
    {0, 3, offsetof(Vertex, position)},
    {1, 3, offsetof(Vertex, normal)},
    {2, 2, offsetof(Vertex, uv)},
};

constexpr Attribute instanceAttributes[] = {
    {3, 4, offsetof(Instance, worldRows)},
    {4, 4, offsetof(Instance, worldRows) + sizeof(glm::vec4)},
    {5, 4, offsetof(Instance, worldRows) + 2 * sizeof(glm::vec4)},
    {6, 4, offsetof(Instance, diffuse)},
    {7, 4, offsetof(Instance, emission)},
};

void setPointer(QOpenGLExtraFunctions& gl, const Attribute& attribute, std::size_t stride,
                std::size_t start) {
    const auto* offset =
        reinterpret_cast<const void*>(start + attribute.offset); // the call's way to say a number
    gl.glVertexAttribPointer(attribute.location, attribute.components, GL_FLOAT, GL_FALSE,
                             static_cast<GLsizei>(stride), offset);
}

template <typename Element>
void fill(QOpenGLExtraFunctions& gl, GLenum target, const GlObject& buffer,
          const std::vector<Element>& data) {
    gl.glBindBuffer(target, buffer.id());
    gl.glBufferData(target, static_cast<GLsizeiptr>(data.size() * sizeof(Element)), data.data(),
                    GL_STATIC_DRAW);
}

} // namespace

MeshCache::Uploaded MeshCache::upload(QOpenGLExtraFunctions& gl, const Shape& shape, Detail detail) {
    const Mesh mesh = makeMesh(shape, detail);
    Uploaded uploaded{shape,         detail,        newVertexArray(gl),
                      newBuffer(gl), newBuffer(gl), static_cast<GLsizei>(mesh.indices.size())};
    gl.glBindVertexArray(uploaded.vertexArray.id());
    fill(gl, GL_ARRAY_BUFFER, uploaded.vertexBuffer, mesh.vertices);
    fill(gl, GL_ELEMENT_ARRAY_BUFFER, uploaded.indexBuffer, mesh.indices);
    for (const Attribute& attribute : vertexAttributes) {
        setPointer(gl, attribute, sizeof(Vertex), 0);
        gl.glEnableVertexAttribArray(attribute.location);
    }
    for (const Attribute& attribute : instanceAttributes) {
        gl.glEnableVertexAttribArray(attribute.location);
        gl.glVertexAttribDivisor(attribute.location, 1);
    }
    return uploaded;
}

const MeshCache::Uploaded& MeshCache::find(QOpenGLExtraFunctions& gl, const Shape& shape, Detail detail) {
    const auto known = std::ranges::find_if(
        meshes_, [&](const Uploaded& mesh) { return mesh.detail == detail && mesh.shape == shape; });
    return known != meshes_.end() ? *known : meshes_.emplace_back(upload(gl, shape, detail));
}

void MeshCache::draw(QOpenGLExtraFunctions& gl, const Batch& batch, GLuint instanceBuffer) {
    const Uploaded& mesh = find(gl, batch.look->shape, batch.detail);
    gl.glBindVertexArray(mesh.vertexArray.id());
    gl.glBindBuffer(GL_ARRAY_BUFFER, instanceBuffer);
    for (const Attribute& attribute : instanceAttributes) {
        setPointer(gl, attribute, sizeof(Instance), batch.first * sizeof(Instance));
    }
    gl.glDrawElementsInstanced(GL_TRIANGLES, mesh.indexCount, GL_UNSIGNED_INT, nullptr,
                               static_cast<GLsizei>(batch.count));
}

} // namespace vorbel
