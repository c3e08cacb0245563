// Two voices, of which one is heard at a time.
#pragma once

#include "platform/speech/Voice.h"

#include <functional>
#include <utility>

namespace vorbel {

// While assistive technology listens it does the talking: a voice of the game's own beside it would be heard
// at the same time. Main thread only.
class Outlets final : public Voice {
public:
    // Both voices must outlive this.
    Outlets(Voice& assistive, Voice& own, std::function<bool()> assistiveListens)
        : assistive_(assistive), own_(own), assistiveListens_(std::move(assistiveListens)) {}

    void say(const std::string& text, std::string_view language, bool urgent) override {
        (assistiveListens_() ? assistive_ : own_).say(text, language, urgent);
    }
    void hush() override {
        assistive_.hush();
        own_.hush();
    }

private:
    Voice& assistive_;
    Voice& own_;
    std::function<bool()> assistiveListens_;
};

} // namespace vorbel
