// Work on several threads whose results come in order: the same, whatever the number of threads.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <functional>
#include <map>
#include <mutex>

namespace vorbel::sim {

// Makes the results 0 … count − 1 on as many threads (more than 256, or than the system gives, are as many as there
// are) and hands each over after those before it. Few are ever waiting for one that takes long.
template <typename Result>
class InOrder {
public:
    using Make = std::function<Result(std::int64_t)>; // on any thread
    using Take = std::function<bool(const Result&)>;  // one at a time; false: enough

    InOrder(std::int64_t count, unsigned jobs, Make make, Take take)
        : count_(count), mostAhead_(std::int64_t{8} * jobs), make_(std::move(make)), take_(std::move(take)) {}

    // On each of the threads.
    void work() {
        for (std::int64_t i = begin(); i < count_; i = begin()) {
            finish(i, make_(i));
        }
    }

private:
    std::int64_t begin() {
        std::unique_lock lock(mutex_);
        const std::int64_t mine = begun_++;
        room_.wait(lock, [&] { return isEnough_ || mine - taken_ < mostAhead_; });
        return isEnough_ ? count_ : mine;
    }

    void finish(std::int64_t i, Result result) {
        const std::scoped_lock lock(mutex_);
        waiting_.emplace(i, std::move(result));
        while (!isEnough_ && !waiting_.empty() && waiting_.begin()->first == taken_) {
            isEnough_ = !take_(waiting_.begin()->second);
            waiting_.erase(waiting_.begin());
            ++taken_;
        }
        room_.notify_all();
    }

    std::int64_t count_;
    std::int64_t mostAhead_;
    Make make_;
    Take take_;
    std::mutex mutex_;
    std::condition_variable room_;
    std::map<std::int64_t, Result> waiting_;
    std::int64_t begun_ = 0;
    std::int64_t taken_ = 0;
    bool isEnough_ = false;
};

// Runs the work on this thread, and on helpers as far as the system gives them.
void together(const std::function<void()>& work, unsigned jobs);

template <typename Result>
void inOrder(std::int64_t count, unsigned jobs, typename InOrder<Result>::Make make,
             typename InOrder<Result>::Take take) {
    InOrder<Result> all(count, jobs, std::move(make), std::move(take));
    together([&all] { all.work(); }, jobs);
}

} // namespace vorbel::sim
