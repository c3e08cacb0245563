// The main queue on Qt's event loop.
#pragma once

#include "platform/runloop/MainQueue.h"

#include <QElapsedTimer>
#include <QObject>

namespace vorbel {

// Make it on the main thread, after the application object.
// What is still waiting when it is destroyed never runs.
class QtMainQueue final : public MainQueue {
public:
    // A speed above 1 makes every delay and period that much
    // shorter: matches in fast motion. Needs speed > 0.
    explicit QtMainQueue(double speed = 1.0);

    void post(Task task) override;
    void postAfter(double seconds, Task task) override;
    [[nodiscard]] Subscription repeat(double period, Task task) override;

    // Seconds of the queue's own, possibly faster, time since it was made.
    [[nodiscard]] double now() const;

private:
    struct Repetition;

    void schedule(const std::shared_ptr<Repetition>& repetition);
    [[nodiscard]] int millisecondsUntil(double time) const;

    double speed_;
    QElapsedTimer clock_;
    QObject receiver_; // takes the posted tasks with it when it goes
};

} // namespace vorbel
