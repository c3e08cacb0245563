// vorbel-sim, but for the process around it.
#pragma once

#include <iosfwd>
#include <span>

namespace vorbel::sim {

// Does what the arguments ask for (the program's name not among them) and gives the exit status: 0, 1 when a
// match did not end or the output could not be written, 2 for wrong arguments. Problems are lines of `errors`.
// What takes long shows its progress on `terminal`, where there is one.
[[nodiscard]] int simulate(std::span<const char* const> arguments, std::ostream& out, std::ostream& errors,
                           std::ostream* terminal = nullptr);

} // namespace vorbel::sim
