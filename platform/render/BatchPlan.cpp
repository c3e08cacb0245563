#include "platform/render/BatchPlan.h"

#include <algorithm>
#include <array>

namespace vorbel {

namespace {

// How round a body of that size in pixels has to be, for its outline to be off by a tenth of a pixel at most.
Detail detailFor(const PixelRect& bounds) {
    constexpr int smallest = 16;
    constexpr int small = 40;
    const int size = std::max(bounds.width(), bounds.height());
    return size <= smallest ? Detail::coarse : size <= small ? Detail::medium : Detail::fine;
}

std::span<const Detail> detailsOf(const Look& look) {
    static constexpr std::array details = {Detail::fine, Detail::medium, Detail::coarse};
    return std::span(details).first(std::holds_alternative<Sphere>(look.shape) ? details.size() : 1);
}

} // namespace

void BatchPlan::begin(const DrawList& list, const std::vector<ItemBounds>& bounds) {
    list_ = &list;
    bounds_ = &bounds;
    instances_.clear();
    batches_.clear();
}

BatchPlan::Range BatchPlan::choose(const std::vector<Group>& groups, PixelRect ItemBounds::*kind,
                                   const PixelRect& region) {
    const std::size_t firstBatch = batches_.size();
    for (const Group& group : groups) {
        const std::span<const Detail> details = detailsOf(group.look);
        for (const Detail detail : details) {
            const std::size_t first = instances_.size();
            for (const std::size_t i : group.items) {
                const PixelRect& bounds = (*bounds_)[i].*kind;
                if (bounds.overlaps(region) && (details.size() == 1 || detailFor(bounds) == detail)) {
                    instances_.push_back(list_->instances[i]);
                }
            }
            if (instances_.size() > first) {
                batches_.push_back({&group.look, detail, first, instances_.size() - first});
            }
        }
    }
    return {firstBatch, batches_.size() - firstBatch};
}

BatchPlan::Range BatchPlan::chooseFloor() {
    batches_.push_back({&list_->floor->look, Detail::fine, instances_.size(), 1});
    instances_.push_back(list_->floor->instance);
    return {batches_.size() - 1, 1};
}

} // namespace vorbel
