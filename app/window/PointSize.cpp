#include "app/window/PointSize.h"

#include <algorithm>

namespace vorbel {

namespace {

// As much as desktops put around a window: the title bar above, a border at the other sides, in pixels.
constexpr QSize decoration(10, 45);

} // namespace

double pointSize(const QSizeF& window) {
    return std::min(window.width() / smallestArea.width(), window.height() / smallestArea.height());
}

QSize smallestWindow(const QSize& freeArea) {
    const double point = std::clamp(pointSize(freeArea - decoration), 0.0, 1.0);
    return {static_cast<int>(point * smallestArea.width()), static_cast<int>(point * smallestArea.height())};
}

} // namespace vorbel
