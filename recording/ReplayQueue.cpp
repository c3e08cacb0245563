#include "recording/ReplayQueue.h"

namespace vorbel::recording {

void ReplayQueue::post(Task task) {
    posted_.push_back(std::move(task));
}

void ReplayQueue::postAfter(double /*seconds*/, Task task) {
    later_.push_back(std::move(task));
}

Subscription ReplayQueue::repeat(double /*period*/, Task task) {
    auto shared = std::make_shared<Task>(std::move(task));
    repeated_ = shared;
    return Subscription([shared]() mutable { shared.reset(); });
}

void ReplayQueue::tick() {
    if (const auto task = repeated_.lock()) {
        (*task)();
    }
    runPosted();
}

void ReplayQueue::step() {
    for (const Task& task : std::exchange(later_, {})) {
        task();
    }
    runPosted();
}

void ReplayQueue::runPosted() {
    while (!posted_.empty()) {
        for (const Task& task : std::exchange(posted_, {})) {
            task();
        }
    }
}

} // namespace vorbel::recording
