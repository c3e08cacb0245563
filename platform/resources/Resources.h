// Where the program's pictures and sounds are found.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

namespace vorbel {

class Resources {
public:
    // Searches the folders in this order. An empty list finds nothing.
    explicit Resources(std::vector<std::filesystem::path> folders = {});

    // The folder that the environment variable VORBEL_RESOURCES names, and no other; where it is not set,
    // `resources/` beside the program, where a build has it, then the folder that they are installed to.
    [[nodiscard]] static Resources forProgram(const std::filesystem::path& executable);

    // The first readable file `name.extension`; none when it is missing everywhere.
    [[nodiscard]] std::optional<std::filesystem::path> find(std::string_view name,
                                                            std::string_view extension) const;

private:
    std::vector<std::filesystem::path> folders_;
};

} // namespace vorbel
