// Counts how often a test program takes memory.
#pragma once

namespace vorbel {

// Calls of operator new since the start of the program, on all threads.
[[nodiscard]] int allocationCount();

} // namespace vorbel
