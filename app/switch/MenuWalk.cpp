#include "app/switch/MenuWalk.h"

#include <algorithm>
#include <cmath>

namespace vorbel {

namespace {

constexpr std::size_t few = 4;   // controls that are offered one by one though they belong together
constexpr int patientRounds = 2; // through a level without a press

} // namespace

MenuWalk::MenuWalk(const std::vector<int>& groups) {
    Level outermost;
    for (std::size_t first = 0; first < groups.size();) {
        std::size_t end = first + 1;
        while (groups[first] != 0 && end < groups.size() && groups[end] == groups[first]) {
            ++end;
        }
        const Range together{first, end - first};
        if (together.count > few) {
            outermost.ranges.push_back(together);
        } else {
            std::ranges::copy(partsOf(together), std::back_inserter(outermost.ranges));
        }
        first = end;
    }
    resting_ = outermost.ranges.empty();
    levels_.push_back(std::move(outermost));
}

// As many parts as each has controls, or nearly so: that is the shortest way to any of them.
std::vector<MenuWalk::Range> MenuWalk::partsOf(Range range) {
    const auto root = static_cast<std::size_t>(std::ceil(std::sqrt(static_cast<double>(range.count))));
    const std::size_t size = range.count <= few + 2 ? 1 : root;
    std::vector<Range> parts;
    for (std::size_t done = 0; done < range.count; done += size) {
        parts.push_back({range.first + done, std::min(size, range.count - done)});
    }
    return parts;
}

std::optional<MenuWalk::Range> MenuWalk::current() const {
    if (resting_) {
        return std::nullopt;
    }
    const Level& level = levels_.back();
    return level.ranges[level.place];
}

void MenuWalk::advance() {
    if (resting_) {
        return;
    }
    Level& level = levels_.back();
    if (++level.place < level.ranges.size()) {
        return;
    }
    level.place = 0;
    if (++level.rounds < patientRounds) {
        return;
    }
    level.rounds = 0;
    if (levels_.size() > 1) {
        levels_.pop_back();
    } else {
        resting_ = true;
    }
}

std::optional<std::size_t> MenuWalk::press() {
    if (levels_.front().ranges.empty()) {
        return std::nullopt;
    }
    if (resting_) {
        resting_ = false;
        return std::nullopt;
    }
    const Range range = *current();
    levels_.back().rounds = 0;
    if (range.count == 1) {
        return range.first;
    }
    levels_.push_back({partsOf(range)});
    return std::nullopt;
}

} // namespace vorbel
