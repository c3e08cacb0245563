// A voice that writes down what it is to say.
#pragma once

#include "platform/speech/Voice.h"

#include <string>
#include <utility>
#include <vector>

namespace vorbel {

class RecordingVoice final : public Voice {
public:
    struct Spoken {
        std::string text;
        std::string language;
        bool urgent;
    };

    void say(const std::string& text, std::string_view language, bool urgent) override {
        spoken.push_back({text, std::string(language), urgent});
    }
    void hush() override { ++hushed; }

    // What was said since the last time, each in a line of its own.
    [[nodiscard]] std::string take() {
        std::string all;
        for (const Spoken& one : std::exchange(spoken, {})) {
            all += (all.empty() ? "" : "\n") + one.text;
        }
        return all;
    }

    std::vector<Spoken> spoken;
    int hushed = 0;
};

} // namespace vorbel
