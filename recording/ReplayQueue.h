// The main queue of a match that is played again: its tick comes when it is asked for, and the steps of the computer's
// turn come when they came.
#pragma once

#include "platform/runloop/MainQueue.h"

#include <memory>
#include <vector>

namespace vorbel::recording {

// For one match and nobody else. Main thread only.
class ReplayQueue final : public MainQueue {
public:
    void post(Task task) override;
    void postAfter(double seconds, Task task) override; // until the next step
    [[nodiscard]] Subscription repeat(double period, Task task) override;

    // What repeats, once, and all that it posts.
    void tick();
    // What was to come after some time, and all that it posts. Of what a match has scheduled and replaced, only the
    // last does anything.
    void step();

private:
    void runPosted();

    std::vector<Task> posted_;
    std::vector<Task> later_;
    std::weak_ptr<Task> repeated_; // the last
};

} // namespace vorbel::recording
