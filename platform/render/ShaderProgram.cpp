#include "platform/render/ShaderProgram.h"

#include "platform/render/Shaders.h"

#include <array>
#include <sstream>

namespace vorbel {

namespace {

std::string completeSource(std::string_view source, std::string_view defines) {
    std::string text = QOpenGLContext::currentContext()->isOpenGLES()
                           ? "#version 300 es\nprecision highp float;\nprecision highp sampler2D;\nprecision "
                             "highp sampler2DShadow;\n"
                           : "#version 330 core\n";
    std::istringstream names{std::string(defines)};
    for (std::string name; names >> name;) {
        text += "#define " + name + "\n";
    }
    return text.append(shaders::viewBlock).append(shaders::lightBlock).append(source);
}

std::string firstLine(const char* text) {
    std::string line;
    std::istringstream stream{std::string(text)};
    std::getline(stream, line);
    return line;
}

GlObject compile(QOpenGLExtraFunctions& gl, GLenum stage, const std::string& source, std::string& error) {
    GlObject shader(gl.glCreateShader(stage),
                    [](QOpenGLExtraFunctions& functions, GLuint id) { functions.glDeleteShader(id); });
    const char* text = source.c_str();
    gl.glShaderSource(shader.id(), 1, &text, nullptr);
    gl.glCompileShader(shader.id());
    GLint compiled = GL_FALSE;
    gl.glGetShaderiv(shader.id(), GL_COMPILE_STATUS, &compiled);
    if (compiled == GL_TRUE) {
        return shader;
    }
    std::array<char, 1024> log{};
    gl.glGetShaderInfoLog(shader.id(), static_cast<GLsizei>(log.size()), nullptr, log.data());
    error = "A shader does not compile: " + firstLine(log.data());
    return {};
}

void bindNames(QOpenGLExtraFunctions& gl, GLuint program) {
    const auto bindBlock = [&](const char* name, GLuint block) {
        const GLuint index = gl.glGetUniformBlockIndex(program, name);
        if (index != GL_INVALID_INDEX) {
            gl.glUniformBlockBinding(program, index, block);
        }
    };
    bindBlock("View", binding::viewBlock);
    bindBlock("Lights", binding::lightBlock);
    bindBlock("Balls", binding::ballBlock);
    gl.glUseProgram(program);
    const auto bindTexture = [&](const char* name, GLint unit) {
        gl.glUniform1i(gl.glGetUniformLocation(program, name),
                       unit); // does nothing with names that are not there
    };
    bindTexture("picture", binding::pictureUnit);
    bindTexture("shadowMap", binding::shadowUnit);
    bindTexture("shaded", binding::shadedUnit);
    bindTexture("nearness", binding::nearnessUnit);
    gl.glUseProgram(0);
}

} // namespace

std::optional<ShaderProgram> ShaderProgram::create(std::string_view vertexSource,
                                                   std::string_view fragmentSource, std::string_view defines,
                                                   std::string& error) {
    QOpenGLExtraFunctions& gl = currentGl();
    const GlObject vertex = compile(gl, GL_VERTEX_SHADER, completeSource(vertexSource, defines), error);
    const GlObject fragment = compile(gl, GL_FRAGMENT_SHADER, completeSource(fragmentSource, defines), error);
    if (vertex.id() == 0 || fragment.id() == 0) {
        return std::nullopt;
    }
    GlObject program(gl.glCreateProgram(),
                     [](QOpenGLExtraFunctions& functions, GLuint id) { functions.glDeleteProgram(id); });
    gl.glAttachShader(program.id(), vertex.id());
    gl.glAttachShader(program.id(), fragment.id());
    gl.glLinkProgram(program.id());
    gl.glDetachShader(program.id(), vertex.id()); // lets the driver drop what it needed for linking alone
    gl.glDetachShader(program.id(), fragment.id());
    GLint linked = GL_FALSE;
    gl.glGetProgramiv(program.id(), GL_LINK_STATUS, &linked);
    if (linked != GL_TRUE) {
        std::array<char, 1024> log{};
        gl.glGetProgramInfoLog(program.id(), static_cast<GLsizei>(log.size()), nullptr, log.data());
        error = "A shader program does not link: " + firstLine(log.data());
        return std::nullopt;
    }
    bindNames(gl, program.id());
    return ShaderProgram(std::move(program));
}

} // namespace vorbel
