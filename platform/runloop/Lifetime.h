// Deferred work that must not outlive the object it belongs to.
#pragma once

#include <memory>
#include <utility>

namespace vorbel {

// A member that stands for its owner's life. Work wrapped by `whileAlive` does nothing once the owner is
// gone. Owner and work live on the main thread.
class Lifetime {
public:
    template <typename Work>
    [[nodiscard]] auto whileAlive(Work work) const {
        return [alive = std::weak_ptr<const bool>(token_), work = std::move(work)] {
            if (!alive.expired()) {
                work();
            }
        };
    }

private:
    std::shared_ptr<const bool> token_ = std::make_shared<const bool>(true);
};

} // namespace vorbel
