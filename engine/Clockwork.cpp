#include "engine/Clockwork.h"

#include <utility>

namespace vorbel {

void Clockwork::start(std::function<void()> work) {
    work_ = std::make_shared<const std::function<void()>>(std::move(work));
    runTicks();
}

void Clockwork::stop() {
    work_ = nullptr;
    timer_.cancel();
}

void Clockwork::runTicks() {
    if (work_ && !paused_) {
        timer_ = queue_.repeat(
            tickPeriod, [this] { queue_.post(lifetime_.whileAlive([this, work = work_] { tick(*work); })); });
    }
}

void Clockwork::tick(const std::function<void()>& work) const {
    work();
    ticks_.tell();
}

void Clockwork::schedule(Step step, double seconds, std::function<void()> work) {
    scheduled_ = {step, seconds, std::move(work)};
    wait();
}

void Clockwork::wait() {
    schedule_ = Lifetime();
    if (scheduled_.step != Step::none && !paused_) {
        queue_.postAfter(scheduled_.seconds, schedule_.whileAlive([this] {
            const auto work = std::exchange(scheduled_, {}).work;
            work();
        }));
    }
}

void Clockwork::cancel() {
    scheduled_ = {};
    schedule_ = Lifetime();
}

void Clockwork::pause() {
    paused_ = true;
    timer_.cancel();
    schedule_ = Lifetime();
}

void Clockwork::resume() {
    if (std::exchange(paused_, false)) {
        runTicks();
        wait();
    }
}

} // namespace vorbel
