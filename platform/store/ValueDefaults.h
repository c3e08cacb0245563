// What every store has in common: typed access to values of one variant type.
#pragma once

#include "platform/store/DefaultsValue.h"
#include "platform/store/UserDefaults.h"

namespace vorbel {

class ValueDefaults : public UserDefaults {
public:
    [[nodiscard]] std::optional<int> integer(std::string_view key) const final { return as<int>(value(key)); }
    [[nodiscard]] std::optional<bool> boolean(std::string_view key) const final {
        return as<bool>(value(key));
    }
    [[nodiscard]] std::optional<std::string> text(std::string_view key) const final {
        return as<std::string>(value(key));
    }
    [[nodiscard]] std::optional<std::string> bytes(std::string_view key) const final {
        auto found = as<Bytes>(value(key));
        return found ? std::optional(std::move(found->data)) : std::nullopt;
    }

    void setInteger(std::string_view key, int value) final { setValue(key, value); }
    void setBoolean(std::string_view key, bool value) final { setValue(key, value); }
    void setText(std::string_view key, const std::string& value) final { setValue(key, value); }
    void setBytes(std::string_view key, const std::string& value) final { setValue(key, Bytes{value}); }

private:
    // None when nothing readable is stored under the key.
    [[nodiscard]] virtual std::optional<DefaultsValue> value(std::string_view key) const = 0;
    virtual void setValue(std::string_view key, DefaultsValue value) = 0;

    template <typename Type>
    static std::optional<Type> as(std::optional<DefaultsValue> found) {
        Type* typed = found ? std::get_if<Type>(&*found) : nullptr;
        return typed != nullptr ? std::optional<Type>(std::move(*typed)) : std::nullopt;
    }
};

} // namespace vorbel
