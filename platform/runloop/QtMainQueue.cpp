#include "platform/runloop/QtMainQueue.h"

#include <QMetaObject>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <memory>

namespace vorbel {

namespace {
constexpr double nanosecondsPerSecond = 1e9;
constexpr double millisecondsPerSecond = 1e3;
} // namespace

// Due times are kept here in seconds: a timer of whole milliseconds would drift.
struct QtMainQueue::Repetition {
    double period = 0;
    double due = 0; // s, time of the next firing
    Task task;
    QTimer timer;
};

QtMainQueue::QtMainQueue(double speed) : speed_(speed) {
    clock_.start();
}

void QtMainQueue::post(Task task) {
    QMetaObject::invokeMethod(&receiver_, std::move(task), Qt::QueuedConnection);
}

void QtMainQueue::postAfter(double seconds, Task task) {
    QTimer::singleShot(millisecondsUntil(now() + seconds), Qt::PreciseTimer, &receiver_, std::move(task));
}

Subscription QtMainQueue::repeat(double period, Task task) {
    auto repetition = std::make_shared<Repetition>();
    repetition->period = period;
    repetition->due = now() + period;
    repetition->task = std::move(task);
    repetition->timer.setSingleShot(true);
    repetition->timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&repetition->timer, &QTimer::timeout, &receiver_,
                     [this, weak = std::weak_ptr<Repetition>(repetition)] {
                         if (const auto running = weak.lock()) {
                             schedule(running); // first, so that the task may cancel its own repetition
                             running->task();
                         }
                     });
    repetition->timer.start(millisecondsUntil(repetition->due));
    return Subscription([repetition]() mutable { repetition.reset(); });
}

void QtMainQueue::schedule(const std::shared_ptr<Repetition>& repetition) {
    // Whole periods that have passed are dropped.
    const double periodsPassed = std::floor((now() - repetition->due) / repetition->period);
    repetition->due += repetition->period * (1.0 + std::max(periodsPassed, 0.0));
    repetition->timer.start(millisecondsUntil(repetition->due));
}

double QtMainQueue::now() const {
    return static_cast<double>(clock_.nsecsElapsed()) / nanosecondsPerSecond * speed_;
}

int QtMainQueue::millisecondsUntil(double time) const {
    const double wait = (time - now()) / speed_ * millisecondsPerSecond;
    return static_cast<int>(std::ceil(std::max(wait, 0.0)));
}

} // namespace vorbel
