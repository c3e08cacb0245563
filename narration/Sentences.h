// Sentences one after the other.
#pragma once

#include <string>
#include <vector>

namespace vorbel::narration {

// With a space between them; empty ones are left out.
[[nodiscard]] inline std::string joined(const std::vector<std::string>& sentences) {
    std::string text;
    for (const std::string& sentence : sentences) {
        if (!text.empty() && !sentence.empty()) {
            text += ' ';
        }
        text += sentence;
    }
    return text;
}

} // namespace vorbel::narration
