#include "platform/physics/BodyTouches.h"

#include <algorithm>

namespace vorbel {

namespace {

constexpr double clearlyApart = 0.001; // m

}

bool BodyTouches::begins(std::size_t a, std::size_t b, double gap, double approach) {
    if (isTouching(a, b)) {
        set(a, b, gap < clearlyApart);
        return false;
    }
    const bool isBegin = gap <= std::max(0.0, approach);
    set(a, b, isBegin);
    return isBegin;
}

} // namespace vorbel
