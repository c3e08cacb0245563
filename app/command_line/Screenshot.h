// A picture of the arena as it is when a match begins.
#pragma once

#include <filesystem>

namespace vorbel {

// Draws it into a PNG file and returns the exit status. Needs the application object.
[[nodiscard]] int takeScreenshot(const std::filesystem::path& file);

} // namespace vorbel
