// Pictures in graphics memory, by resource name.
#pragma once

#include "platform/render/GlObject.h"
#include "platform/resources/Resources.h"

#include <map>
#include <string>
#include <string_view>

namespace vorbel {

class PictureCache {
public:
    explicit PictureCache(const Resources& resources) : resources_(resources) {}

    // The texture with the PNG of that name, its colours multiplied by alpha, with all smaller sizes; plain
    // white when the picture is missing or broken.
    GLuint find(QOpenGLExtraFunctions& gl, std::string_view name);

private:
    const Resources& resources_;
    std::map<std::string, GlObject, std::less<>> textures_;
};

} // namespace vorbel
