#include "engine/Clockwork.h"

namespace vorbel {

void Clockwork::start(std::function<void()> work) {
    const auto tick = [this, work = std::move(work)] {
        work();
        ticks_.tell();
    };
    timer_ = queue_.repeat(tickPeriod, [this, tick] { queue_.post(lifetime_.whileAlive(tick)); });
}

void Clockwork::schedule(Step step, double seconds, std::function<void()> work) {
    cancel();
    scheduled_ = step;
    queue_.postAfter(seconds, schedule_.whileAlive([this, work = std::move(work)] {
        scheduled_ = Step::none;
        work();
    }));
}

void Clockwork::cancel() {
    scheduled_ = Step::none;
    schedule_ = Lifetime();
}

} // namespace vorbel
