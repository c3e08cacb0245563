// Compiled and linked shaders.
#pragma once

#include "platform/render/GlObject.h"

#include <optional>
#include <string>
#include <string_view>

namespace vorbel {

// Uniform blocks and texture units that all programs agree on.
namespace binding {
inline constexpr GLuint viewBlock = 0;
inline constexpr GLuint lightBlock = 1;
inline constexpr GLuint ballBlock = 2;
inline constexpr GLint pictureUnit = 0;
inline constexpr GLint shadowUnit = 1;
inline constexpr GLint shadedUnit = 2;
inline constexpr GLint nearnessUnit = 3;
} // namespace binding

class ShaderProgram {
public:
    // Needs a current context. `defines` are names, separated by spaces, that switch parts of the sources on.
    // None when a shader does not compile or the program does not link; `error` then holds the first line of
    // the driver's reason.
    [[nodiscard]] static std::optional<ShaderProgram> create(std::string_view vertexSource,
                                                             std::string_view fragmentSource,
                                                             std::string_view defines, std::string& error);

    void use(QOpenGLExtraFunctions& gl) const { gl.glUseProgram(program_.id()); }

private:
    explicit ShaderProgram(GlObject program) : program_(std::move(program)) {}
    GlObject program_;
};

} // namespace vorbel
