// The last line of a game that crashes.
#pragma once

#include <filesystem>

namespace vorbel {

// From now on a crash is noted at the end of the file, with the addresses of the calls that led to it; the system
// does with the program what it does without this. The file's folder must exist by then. Call once.
void noteCrashesIn(const std::filesystem::path& file);

} // namespace vorbel
