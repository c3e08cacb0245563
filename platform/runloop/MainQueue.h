// The main thread's queue of work. All of the game runs on it.
#pragma once

#include <functional>
#include <utility>

namespace vorbel {

// A running repetition or observation; it ends when this object is destroyed or replaced.
class Subscription {
public:
    Subscription() = default;
    explicit Subscription(std::function<void()> cancel) : cancel_(std::move(cancel)) {}
    Subscription(Subscription&& other) noexcept : cancel_(std::exchange(other.cancel_, nullptr)) {}
    Subscription& operator=(Subscription&& other) noexcept {
        if (this != &other) {
            this->cancel();
            cancel_ = std::exchange(other.cancel_, nullptr);
        }
        return *this;
    }
    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;
    ~Subscription() { cancel(); }

    void cancel() {
        if (cancel_) {
            std::exchange(cancel_, nullptr)();
        }
    }

private:
    std::function<void()> cancel_;
};

class MainQueue {
public:
    using Task = std::function<void()>;

    virtual ~MainQueue() = default;

    // Runs the task on the main thread after everything that is already due. May be called from any thread.
    virtual void post(Task task) = 0;

    // The same, `seconds` ≥ 0 from now. Main thread only.
    virtual void postAfter(double seconds, Task task) = 0;

    // Runs the task every `period` > 0 seconds, the first time one period from now. A firing that comes a
    // whole period late is dropped, never made up for. Main thread only.
    [[nodiscard]] virtual Subscription repeat(double period, Task task) = 0;
};

} // namespace vorbel
