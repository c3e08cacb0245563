// A value that tells its observers before it changes.
#pragma once

#include "platform/runloop/Observers.h"

#include <functional>
#include <utility>

namespace vorbel {

// Reads like a plain value; assignment announces the new value, stores it, then runs the after-change action.
// Every assignment counts as a change, of an equal value too. Whoever has it as const can read and observe
// it. Main thread only.
template <typename T>
class Published {
public:
    using Observer = std::function<void(const T& newValue)>;

    explicit Published(T initial) : value_(std::move(initial)) {}
    Published(const Published&) = delete;
    Published& operator=(const Published&) = delete;

    [[nodiscard]] const T& get() const { return value_; }
    operator const T&() const { return value_; } // NOLINT(google-explicit-constructor): reads like the value

    Published& operator=(T newValue) {
        observers_.tell(newValue);
        value_ = std::move(newValue);
        if (afterChange_) {
            afterChange_();
        }
        return *this;
    }
    Published& operator+=(const T& difference) { return *this = value_ + difference; }
    Published& operator-=(const T& difference) { return *this = value_ - difference; }

    // Calls the observer before every change for as long as
    // the subscription lives. The value must outlive it.
    [[nodiscard]] Subscription onWillChange(Observer observer) const {
        return observers_.add(std::move(observer));
    }

    // One action of the owner, run after every change.
    void setAfterChange(std::function<void()> action) { afterChange_ = std::move(action); }

private:
    T value_;
    mutable Observers<T> observers_;
    std::function<void()> afterChange_;
};

} // namespace vorbel
