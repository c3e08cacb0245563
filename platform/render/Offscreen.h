// Drawing into an image instead of a window.
#pragma once

#include "platform/render/Frame.h"

#include <string>

#include <QImage>

namespace vorbel {

class Resources;

// Draws the frame into an image of width × height pixels, with an OpenGL context of its own. Needs a
// QGuiApplication and must be called on its thread. The image is null when drawing is impossible; `error`
// then says why.
[[nodiscard]] QImage renderToImage(const Frame& frame, int width, int height, const Resources& resources,
                                   std::string& error);

} // namespace vorbel
