#include "platform/resources/Resources.h"

#include <cstdlib>
#include <string>
#include <system_error>

namespace vorbel {

namespace fs = std::filesystem;

Resources::Resources(std::vector<fs::path> folders) : folders_(std::move(folders)) {}

Resources Resources::forProgram(const fs::path& executable) {
    if (const char* chosen = std::getenv("VORBEL_RESOURCES"); chosen != nullptr && *chosen != '\0') {
        return Resources({fs::path(chosen)});
    }
    const fs::path folder = executable.parent_path();
    return Resources({folder / "resources", (folder / VORBEL_DATA_FOLDER).lexically_normal()});
}

std::optional<fs::path> Resources::find(std::string_view name, std::string_view extension) const {
    const std::string fileName = std::string(name) + "." + std::string(extension);
    for (const fs::path& folder : folders_) {
        std::error_code error;
        if (fs::is_regular_file(folder / fileName, error)) {
            return folder / fileName;
        }
    }
    return std::nullopt;
}

} // namespace vorbel
