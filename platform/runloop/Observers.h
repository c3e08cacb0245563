// Who wants to be told of something that happens again and again.
#pragma once

#include "platform/runloop/MainQueue.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace vorbel {

// Main thread only. Must outlive the subscriptions that it gave.
template <typename... News>
class Observers {
public:
    using Observer = std::function<void(const News&...)>;

    // Calls the observer at every announcement for as long as the subscription lives.
    [[nodiscard]] Subscription add(Observer observer) {
        observers_.push_back(std::make_shared<Observer>(std::move(observer)));
        return Subscription([this, added = std::weak_ptr<Observer>(observers_.back())] {
            std::erase(observers_, added.lock());
        });
    }

    // In the order in which they came. One that subscribes or leaves others meanwhile changes the next
    // announcement, not this one.
    void tell(const News&... news) const {
        const auto observers = observers_;
        for (const auto& observer : observers) {
            (*observer)(news...);
        }
    }

private:
    std::vector<std::shared_ptr<Observer>> observers_;
};

} // namespace vorbel
