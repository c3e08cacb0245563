// A recording's file, whoever sent it.
#pragma once

#include "recording/Recording.h"

#include <filesystem>

namespace vorbel::recording {

// As readRecording, or a sentence that says why the file cannot be read. Only a regular file of at most 64 MiB is
// opened: a pipe would never end.
[[nodiscard]] std::variant<Recording, std::string> recordingInFile(const std::filesystem::path& file);

} // namespace vorbel::recording
