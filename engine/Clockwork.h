// What a match does without being asked: its tick, and the next step of the computer's turn.
#pragma once

#include "platform/runloop/Lifetime.h"
#include "platform/runloop/Observers.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace vorbel {

// Main thread only. Nothing that it was given runs once it is gone.
class Clockwork {
public:
    static constexpr double tickPeriod = 0.02; // s

    // The queue must outlive this.
    explicit Clockwork(MainQueue& queue) : queue_(queue) {}

    // Runs the work every tick, and tells the observers after it, until it is stopped or started again.
    void start(std::function<void()> work);
    void stop();
    // Nothing runs between pause and resume: neither the tick, nor the step, which then waits its whole time
    // anew. Either does nothing when it was already called.
    void pause();
    void resume();
    [[nodiscard]] Subscription onTick(std::function<void()> observer) {
        return ticks_.add(std::move(observer));
    }

    // The steps of the computer's turn, to take aim and to release the ball: one at most is scheduled.
    enum class Step : std::uint8_t { none, aim, release };
    [[nodiscard]] Step scheduled() const { return scheduled_.step; }
    // Runs the work `seconds` from now as that step, in place of what was scheduled before.
    void schedule(Step step, double seconds, std::function<void()> work);
    void cancel(); // drops what is scheduled

private:
    struct Scheduled {
        Step step = Step::none;
        double seconds = 0;
        std::function<void()> work;
    };

    void runTicks();
    void tick(const std::function<void()>& work) const;
    void wait(); // for the scheduled step

    MainQueue& queue_;
    std::shared_ptr<const std::function<void()>> work_; // of a tick; none while it is stopped
    bool paused_ = false;
    Subscription timer_;
    Observers<> ticks_;
    Scheduled scheduled_;
    Lifetime schedule_; // of the scheduled step: replaced with it
    Lifetime lifetime_;
};

} // namespace vorbel
