// A main queue on a clock that moves only when told to, for tests and for matches without a window.
#pragma once

#include "platform/runloop/MainQueue.h"

#include <cstdint>
#include <map>
#include <memory>

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

    void schedule(Microseconds due, Task task);
    void scheduleRepeat(Microseconds due, Microseconds period, std::weak_ptr<Task> task);

    std::multimap<Microseconds, Task> pending_;
    Microseconds now_ = 0;
};

} // namespace vorbel
