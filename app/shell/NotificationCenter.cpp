#include "app/shell/NotificationCenter.h"

namespace vorbel {

Subscription NotificationCenter::addObserver(std::string_view name, Observer observer) {
    entries_.push_back(std::make_shared<const Entry>(Entry{std::string(name), std::move(observer)}));
    return Subscription(
        [this, added = std::weak_ptr<const Entry>(entries_.back())] { std::erase(entries_, added.lock()); });
}

void NotificationCenter::post(std::string_view name) const {
    const auto entries = entries_; // an observer may add or remove others
    for (const auto& entry : entries) {
        if (entry->name == name) {
            entry->observer();
        }
    }
}

} // namespace vorbel
