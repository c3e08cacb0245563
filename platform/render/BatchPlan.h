// What is drawn for each region, with the instances of all regions in one row.
#pragma once

#include "platform/render/DrawList.h"
#include "platform/render/Mesh.h"

#include <span>

namespace vorbel {

// Instances that are drawn in one go.
struct Batch {
    const Look* look = nullptr; // in the list that it was chosen from
    Detail detail = Detail::fine;
    std::size_t first = 0; // into BatchPlan::instances
    std::size_t count = 0;
};

class BatchPlan {
public:
    struct Range {
        std::size_t first = 0;
        std::size_t count = 0;
    };

    // `list` must stay as it is for as long as the batches are used. Keeps its memory.
    void begin(const DrawList& list, const std::vector<ItemBounds>& bounds);

    // Chooses the items whose rectangle of that kind overlaps the region.
    Range choose(const std::vector<Group>& groups, PixelRect ItemBounds::*kind, const PixelRect& region);
    Range chooseFloor();

    [[nodiscard]] const std::vector<Instance>& instances() const { return instances_; }
    [[nodiscard]] std::span<const Batch> batches(const Range& range) const {
        return std::span(batches_).subspan(range.first, range.count);
    }

private:
    const DrawList* list_ = nullptr;
    const std::vector<ItemBounds>* bounds_ = nullptr;
    std::vector<Instance> instances_;
    std::vector<Batch> batches_;
};

} // namespace vorbel
