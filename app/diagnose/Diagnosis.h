// What a report of a problem needs to say of game and machine.
#pragma once

#include <filesystem>
#include <string>

namespace vorbel {

class Resources;

struct Folders {
    std::filesystem::path settings;
    std::filesystem::path state;
};

// Call it before the application object is made: lets the toolkit do without a display where none is reached.
void allowNoDisplay();

// Whether it does.
[[nodiscard]] bool hasDisplay();

// A page in English, true on a machine without display, sound or OpenGL too. It names nobody: the home folder is a tilde.
// Needs the application object.
[[nodiscard]] std::string diagnosis(const Resources& resources, const Folders& folders);

} // namespace vorbel
