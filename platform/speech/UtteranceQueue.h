// What waits to be said, on its way from one thread to another.
#pragma once

#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <string>

namespace vorbel {

struct Utterance {
    std::string text;     // UTF-8; empty: only drops what was to be said before
    std::string language; // two-letter code
    bool urgent = false;
};

// Any thread.
class UtteranceQueue {
public:
    // An urgent one takes the place of all that wait. Of more than a few the oldest are dropped: nobody wants
    // to hear them any more.
    void push(Utterance utterance);

    // Waits for the next one; none once the queue is closed.
    [[nodiscard]] std::optional<Utterance> pop();
    void close();

private:
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Utterance> waiting_;
    bool closed_ = false;
};

} // namespace vorbel
