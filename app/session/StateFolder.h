// Where the program notes down what it did, as against what the player earned.
#pragma once

#include <filesystem>

namespace vorbel {

// `vorbel` in the user's own folder for such notes: $XDG_STATE_HOME, else ~/.local/state. It may not exist.
[[nodiscard]] std::filesystem::path userStateFolder();

} // namespace vorbel
