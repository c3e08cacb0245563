// The player's settings and progress, kept between runs.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace vorbel {

// A value of another type than asked for reads as absent. Writing goes through to the storage at once.
class UserDefaults {
public:
    virtual ~UserDefaults() = default;

    [[nodiscard]] virtual std::optional<int> integer(std::string_view key) const = 0;
    [[nodiscard]] virtual std::optional<bool> boolean(std::string_view key) const = 0;
    [[nodiscard]] virtual std::optional<std::string> text(std::string_view key) const = 0;
    [[nodiscard]] virtual std::optional<std::string> bytes(std::string_view key) const = 0;

    virtual void setInteger(std::string_view key, int value) = 0;
    virtual void setBoolean(std::string_view key, bool value) = 0;
    virtual void setText(std::string_view key, const std::string& value) = 0;
    virtual void setBytes(std::string_view key, const std::string& value) = 0;

    // Runs the change at once, and while it runs no other game changes a value: what it reads and then sets
    // is one step, so that two games add up. Changes may be nested.
    virtual void atomically(const std::function<void()>& change) = 0;

    // For a reader who finds that what is stored under the key, though of the right type, is damaged: it is
    // kept under a name of its own, and the key is absent until it is set again.
    virtual void setAside(std::string_view key) = 0;
};

} // namespace vorbel
