// A store that is forgotten with the program: for tests and demonstrations.
#pragma once

#include "platform/store/ValueDefaults.h"

#include <map>

namespace vorbel {

class MemoryDefaults final : public ValueDefaults {
public:
    void atomically(const std::function<void()>& change) override { change(); }
    void setAside(std::string_view key) override; // forgets it, as all the rest some day

private:
    [[nodiscard]] std::optional<DefaultsValue> value(std::string_view key) const override;
    void setValue(std::string_view key, DefaultsValue value) override;

    std::map<std::string, DefaultsValue, std::less<>> values_;
};

} // namespace vorbel
