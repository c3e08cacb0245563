// What the program hands out besides its window: texts, and pictures as files.
#pragma once

#include <cstdio>
#include <filesystem>
#include <string_view>

class QImage;

namespace vorbel {

// Writes the text, to the last byte. False, and one line on the error output, when that fails.
[[nodiscard]] bool isWritten(std::string_view text, std::FILE* output);

// Writes a PNG file. False, and one line on the error output, when that fails: then no new file is left
// there, and an old one stays as it is. A device or a pipe is written to and not replaced.
[[nodiscard]] bool isWritten(const QImage& picture, const std::filesystem::path& file);

} // namespace vorbel
