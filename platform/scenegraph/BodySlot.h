// The place of a rigid body in a node.
#pragma once

#include "platform/scenegraph/PhysicsBody.h"

#include <cstdint>
#include <memory>
#include <utility>

namespace vorbel {

// Holds a body or none, like the pointer that it is made from, and counts its replacements where its node is
// a child: whoever watches hundreds of nodes, hardly any of which ever gets a body, need not look at each.
class BodySlot {
public:
    using Body = std::shared_ptr<PhysicsBody>;
    using Count = std::shared_ptr<std::uint64_t>; // null: nobody counts

    BodySlot& operator=(Body body) {
        body_ = std::move(body);
        count();
        return *this;
    }

    [[nodiscard]] explicit operator bool() const { return body_ != nullptr; }
    [[nodiscard]] PhysicsBody& operator*() const { return *body_; }
    [[nodiscard]] PhysicsBody* operator->() const { return body_.get(); }
    [[nodiscard]] const Body& pointer() const { return body_; }

    // Whether both hold the same body, not equal ones.
    friend bool operator==(const BodySlot& a, const BodySlot& b) { return a.body_ == b.body_; }

    // From now on replacements count there.
    void countIn(Count replacements) { replacements_ = std::move(replacements); }

private:
    void count() {
        if (replacements_) {
            ++*replacements_;
        }
    }

    Body body_;
    Count replacements_;
};

} // namespace vorbel
