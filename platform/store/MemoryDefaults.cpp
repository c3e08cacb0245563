#include "platform/store/MemoryDefaults.h"

namespace vorbel {

std::optional<DefaultsValue> MemoryDefaults::value(std::string_view key) const {
    const auto found = values_.find(key);
    return found != values_.end() ? std::optional(found->second) : std::nullopt;
}

void MemoryDefaults::setValue(std::string_view key, DefaultsValue value) {
    values_.insert_or_assign(std::string(key), std::move(value));
}

} // namespace vorbel
