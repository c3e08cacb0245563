// The program: its services, its window, its event loop.
#pragma once

#include "app/command_line/CommandLine.h"

namespace vorbel {

// Does what was asked for (play, demonstrate, takeScreenshot or diagnose) and returns the exit status.
[[nodiscard]] int runApplication(int argc, char** argv, const CommandLine& commandLine);

} // namespace vorbel
