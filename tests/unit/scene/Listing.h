// A scene as text, a node a line, to hold against a list that stands in the tree.
#pragma once

#include "platform/scenegraph/Scene.h"

#include <filesystem>
#include <string>
#include <vector>

namespace vorbel::test {

// All that is seen or touched of each node, children two columns further right. Numbers have six digits.
[[nodiscard]] std::vector<std::string> listingOf(const Scene& scene);

// Fails, saying which line differs first, when the lines are not those of the file. Writes them there before,
// if VORBEL_UPDATE_LISTINGS is set.
void expectListed(const std::vector<std::string>& lines, const std::filesystem::path& file);

} // namespace vorbel::test
