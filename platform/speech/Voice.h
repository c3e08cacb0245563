// Whoever says something aloud.
#pragma once

#include <string>
#include <string_view>

namespace vorbel {

class Voice {
public:
    virtual ~Voice() = default;

    // Says the text, UTF-8, in the language of that two-letter code, after what was to be said before; an
    // urgent one at once and in its place. Returns without waiting.
    virtual void say(const std::string& text, std::string_view language, bool urgent) = 0;

    // Drops what is being said and what waits to be.
    virtual void hush() = 0;
};

} // namespace vorbel
