// Pictures in graphics memory, by resource name.
#pragma once

#include "platform/render/GlObject.h"
#include "platform/render/Pictures.h"

#include <map>
#include <string>
#include <string_view>

namespace vorbel {

class PictureCache {
public:
    explicit PictureCache(Pictures& pictures) : pictures_(pictures) {}

    // The texture with the picture of that name and all its smaller sizes.
    GLuint find(QOpenGLExtraFunctions& gl, std::string_view name);

private:
    Pictures& pictures_;
    std::map<std::string, GlObject, std::less<>> textures_;
};

} // namespace vorbel
