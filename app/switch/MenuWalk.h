// Which of a screen's controls one switch would press now.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

namespace vorbel {

// The choice goes from control to control, by itself. Many controls that belong together are first offered as
// one, then in parts, then one by one: a range at a time. A range that was gone through twice without a press
// is left again; on the outermost level the walk then rests until the next press.
class MenuWalk {
public:
    struct Range {
        std::size_t first = 0; // places in the list of controls
        std::size_t count = 0;

        bool operator==(const Range&) const = default;
    };

    // For each control, in the order of the keyboard's focus, the group that it belongs to; 0 for none.
    explicit MenuWalk(const std::vector<int>& groups);

    [[nodiscard]] std::optional<Range> current() const; // none while it rests, or without any control
    void advance();                                     // to the next range
    // The control that is pressed by it; none when that wakes the walk, or leads into a range.
    std::optional<std::size_t> press();

private:
    struct Level {
        std::vector<Range> ranges;
        std::size_t place = 0;
        int rounds = 0;
    };

    [[nodiscard]] static std::vector<Range> partsOf(Range range);

    std::vector<Level> levels_; // the innermost last
    bool resting_ = false;
};

} // namespace vorbel
