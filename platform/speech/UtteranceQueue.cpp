#include "platform/speech/UtteranceQueue.h"

#include <utility>

namespace vorbel {

void UtteranceQueue::push(Utterance utterance) {
    constexpr std::size_t most = 16;
    {
        const std::scoped_lock lock(mutex_);
        if (utterance.urgent) {
            waiting_.clear();
        }
        waiting_.push_back(std::move(utterance));
        if (waiting_.size() > most) {
            waiting_.pop_front();
        }
    }
    changed_.notify_one();
}

std::optional<Utterance> UtteranceQueue::pop() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return closed_ || !waiting_.empty(); });
    if (closed_) {
        return std::nullopt;
    }
    Utterance next = std::move(waiting_.front());
    waiting_.pop_front();
    return next;
}

void UtteranceQueue::close() {
    {
        const std::scoped_lock lock(mutex_);
        closed_ = true;
    }
    changed_.notify_all();
}

} // namespace vorbel
