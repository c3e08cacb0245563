// Pictures from the resources, read and decoded before they are needed.
#pragma once

#include "platform/render/Frame.h"
#include "platform/resources/Resources.h"

#include <future>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <QImage>

namespace vorbel {

// A picture and all its smaller sizes, each half as large as the one before, down to a single pixel. RGBA,
// eight bits each, encoded as sRGB; colours multiplied by alpha.
using PictureSizes = std::vector<QImage>;

// Announce on one thread, then read on one thread.
class Pictures {
public:
    // Keeps a reference to `resources`.
    explicit Pictures(const Resources& resources) : resources_(resources) {}

    // Starts reading every picture that the frame shows, each on a thread of its own.
    void announce(const Frame& frame);

    // The PNG of that name, at most as high as it is ever seen; one white pixel when it is missing or broken.
    // Waits for an announced one; reads any other, or a second time, now.
    [[nodiscard]] PictureSizes read(std::string_view name);

private:
    const Resources& resources_;
    std::map<std::string, std::future<PictureSizes>, std::less<>> announced_;
};

} // namespace vorbel
