#include "app/shell/NotificationCenter.h"

namespace vorbel {

Subscription NotificationCenter::addObserver(std::string_view name, Observer observer) {
    entries_->push_back(std::make_shared<const Entry>(Entry{std::string(name), std::move(observer)}));
    return Subscription([all = std::weak_ptr(entries_), added = std::weak_ptr(entries_->back())] {
        if (const auto entries = all.lock()) {
            std::erase(*entries, added.lock());
        }
    });
}

void NotificationCenter::post(std::string_view name) const {
    const Entries entries = *entries_; // an observer may add or remove others
    for (const auto& entry : entries) {
        if (entry->name == name) {
            entry->observer();
        }
    }
}

} // namespace vorbel
