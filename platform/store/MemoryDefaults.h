// A store that is forgotten with the program: for tests and demonstrations.
#pragma once

#include "platform/store/ValueDefaults.h"

namespace vorbel {

class MemoryDefaults final : public ValueDefaults {
private:
    [[nodiscard]] std::optional<DefaultsValue> value(std::string_view key) const override;
    void setValue(std::string_view key, DefaultsValue value) override;

    std::map<std::string, DefaultsValue, std::less<>> values_;
};

} // namespace vorbel
