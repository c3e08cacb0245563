// The kind of OpenGL that the renderer needs.
#pragma once

#include <QSurfaceFormat>

namespace vorbel {

// The default format with OpenGL 3.3 (core profile); with OpenGL ES 3.0 where the toolkit has nothing else,
// or where the default format asks for OpenGL ES.
[[nodiscard]] QSurfaceFormat openGlFormat();

} // namespace vorbel
