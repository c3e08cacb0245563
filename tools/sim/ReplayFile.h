// A recorded match, told again.
#pragma once

#include <iosfwd>
#include <string>

namespace vorbel::sim {

// Plays the file's match and tells its result, with a line for every throw before it if they are wanted. False, and one
// line of `errors`, when it cannot be read or does not go as it was recorded.
[[nodiscard]] bool replayFile(const std::string& file, bool withThrows, std::ostream& out,
                              std::ostream& errors);

} // namespace vorbel::sim
