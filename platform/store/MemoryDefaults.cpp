#include "platform/store/MemoryDefaults.h"

namespace vorbel {

void MemoryDefaults::setAside(std::string_view key) {
    if (const auto found = values_.find(key); found != values_.end()) {
        values_.erase(found);
    }
}

std::optional<DefaultsValue> MemoryDefaults::value(std::string_view key) const {
    const auto found = values_.find(key);
    return found != values_.end() ? std::optional(found->second) : std::nullopt;
}

void MemoryDefaults::setValue(std::string_view key, DefaultsValue value) {
    values_.insert_or_assign(std::string(key), std::move(value));
}

} // namespace vorbel
