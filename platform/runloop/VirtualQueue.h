// A main queue on a clock that moves only when told to, for tests and for matches without a window.
#pragma once

#include "platform/runloop/MainQueue.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace vorbel {

class VirtualQueue final : public MainQueue {
public:
    void post(Task task) override;
    void postAfter(double seconds, Task task) override;
    [[nodiscard]] Subscription repeat(double period, Task task) override;

    // Lets `seconds` pass: runs what falls due, in order of
    // time and then of posting, work posted meanwhile too.
    void advance(double seconds);

    // Seconds since the queue was made.
    [[nodiscard]] double now() const;

private:
    // Whole microseconds, so that the fortieth tick of
    // 0.02 s and a delay of 0.8 s are due at the same instant.
    using Microseconds = std::int64_t;

    struct Pending {
        Microseconds due;
        std::uint64_t order; // of posting
        Task task;
    };
    static bool isLater(const Pending& a, const Pending& b);

    void schedule(Microseconds due, Task task);
    void scheduleRepeat(Microseconds due, Microseconds period, std::weak_ptr<Task> task);

    std::vector<Pending> pending_; // a heap: what is due next lies in front
    std::uint64_t posted_ = 0;
    Microseconds now_ = 0;
};

} // namespace vorbel
