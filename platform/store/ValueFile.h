// A stored value as a file of its own.
#pragma once

#include "platform/store/DefaultsValue.h"

#include <filesystem>
#include <optional>

namespace vorbel {

// None when there is no such file, or no value can be read from it. Nothing but a regular file of at most
// 64 MiB, which is a diary of half a million matches, is opened at all: a pipe would never end.
[[nodiscard]] std::optional<DefaultsValue> valueIn(const std::filesystem::path& path);

// Replaces the file whole, once its new content is safely on the disk; false when that fails, and then the
// old content stays. What stood there and is no value of the new one's type is set aside before.
[[nodiscard]] bool isReplaced(const std::filesystem::path& path, const DefaultsValue& value);

// Renames whatever is there to `FILE.damaged`, or `FILE.damaged-2`, `-3` … when that name is taken: what was
// set aside once is never overwritten. False when there is something that cannot be renamed.
bool isSetAside(const std::filesystem::path& file);

// Whether it is a new content whose writer was killed before it could replace the file it was meant for.
[[nodiscard]] bool isUnfinished(const std::filesystem::path& file);

} // namespace vorbel
