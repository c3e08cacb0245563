// Looks at what another process or thread does, which no clock of the tests moves.
#pragma once

#include <chrono>
#include <thread>

namespace vorbel {

// Looks again and again until the condition holds; false when it does not within that time, which no test asserts.
template <typename Condition>
[[nodiscard]] bool waitUntil(const Condition& condition, std::chrono::milliseconds within,
                             std::chrono::milliseconds betweenLooks) {
    const auto deadline = std::chrono::steady_clock::now() + within;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline) {
            return false;
        }
        std::this_thread::sleep_for(betweenLooks);
    }
    return true;
}

} // namespace vorbel
