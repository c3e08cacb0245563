#include "app/command_line/Version.h"

namespace vorbel {

std::string_view version() {
    return VORBEL_VERSION;
}

} // namespace vorbel
