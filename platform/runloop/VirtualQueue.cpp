#include "platform/runloop/VirtualQueue.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vorbel {

namespace {

constexpr double microsecondsPerSecond = 1e6;

std::int64_t toMicroseconds(double seconds) {
    return std::llround(seconds * microsecondsPerSecond);
}

} // namespace

void VirtualQueue::post(Task task) {
    schedule(now_, std::move(task));
}

void VirtualQueue::postAfter(double seconds, Task task) {
    schedule(now_ + toMicroseconds(seconds), std::move(task));
}

Subscription VirtualQueue::repeat(double period, Task task) {
    auto shared = std::make_shared<Task>(std::move(task));
    const Microseconds step = toMicroseconds(period);
    scheduleRepeat(now_ + step, step, shared);
    return Subscription([shared]() mutable { shared.reset(); });
}

void VirtualQueue::advance(double seconds) {
    const Microseconds end = now_ + toMicroseconds(seconds);
    while (!pending_.empty() && pending_.front().due <= end) {
        std::ranges::pop_heap(pending_, isLater);
        const Pending next = std::move(pending_.back());
        pending_.pop_back();
        now_ = next.due;
        next.task();
    }
    now_ = end;
}

double VirtualQueue::now() const {
    return static_cast<double>(now_) / microsecondsPerSecond;
}

bool VirtualQueue::isLater(const Pending& a, const Pending& b) {
    return a.due != b.due ? a.due > b.due : a.order > b.order;
}

void VirtualQueue::schedule(Microseconds due, Task task) {
    pending_.push_back({due, posted_++, std::move(task)});
    std::ranges::push_heap(pending_, isLater);
}

void VirtualQueue::scheduleRepeat(Microseconds due, Microseconds period, std::weak_ptr<Task> task) {
    schedule(due, [this, due, period, task = std::move(task)] {
        if (const auto running = task.lock()) {
            scheduleRepeat(due + period, period, task);
            (*running)();
        }
    });
}

} // namespace vorbel
