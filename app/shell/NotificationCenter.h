// How the shell tells the game view what the player asked for, without knowing it.
#pragma once

#include "platform/runloop/MainQueue.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vorbel {

// Posted by the game menu. They carry nothing but their name.
inline constexpr std::string_view newGameRequested = "bocciaNewGameRequested";
inline constexpr std::string_view showRulesRequested = "bocciaShowRulesRequested";
inline constexpr std::string_view showAboutRequested = "bocciaShowAboutRequested";
inline constexpr std::string_view showOptionsRequested = "bocciaShowOptionsRequested";

// Main thread only.
class NotificationCenter {
public:
    using Observer = std::function<void()>;

    // Calls the observer whenever that name is posted, for as long as the subscription lives. That may
    // outlive the centre.
    [[nodiscard]] Subscription addObserver(std::string_view name, Observer observer);

    // Calls the observers of that name before it returns, the oldest first. Without any it does nothing.
    void post(std::string_view name) const;

private:
    struct Entry {
        std::string name;
        Observer observer;
    };
    using Entries = std::vector<std::shared_ptr<const Entry>>;
    std::shared_ptr<Entries> entries_ = std::make_shared<Entries>(); // its subscriptions hold it weakly
};

} // namespace vorbel
