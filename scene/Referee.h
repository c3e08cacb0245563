// The referee beside the left side line, one arm raised.
#pragma once

#include "platform/scenegraph/Node.h"

namespace vorbel::arena {

// At half the court's length, facing it. Lengths in metres.
[[nodiscard]] Node::Ptr makeReferee(double courtWidth, double courtLength);

} // namespace vorbel::arena
