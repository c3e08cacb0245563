// The current OpenGL context, which the renderer shares with the toolkit.
#pragma once

#include "platform/render/GlObject.h"

#include <string>

namespace vorbel {

// A reason not to draw with the current context, or an empty text.
[[nodiscard]] std::string contextProblem();

// Undoes what other users of the context may have left: the passes rely on it.
void setDefaults(QOpenGLExtraFunctions& gl);

// Leaves nothing bound and nothing culled for those who come next.
void releaseBindings(QOpenGLExtraFunctions& gl);

} // namespace vorbel
