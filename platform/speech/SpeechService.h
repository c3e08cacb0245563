// The voice of the desktop's speech service.
#pragma once

#include "platform/speech/UtteranceQueue.h"
#include "platform/speech/Voice.h"

#include <memory>

namespace vorbel {

// Main thread only. Looks for the service when there is something to say, on a thread of its own: a service
// that is missing, slow or stuck holds nobody up, and nothing is heard.
class SpeechService final : public Voice {
public:
    SpeechService() = default;
    ~SpeechService() override;
    SpeechService(const SpeechService&) = delete;
    SpeechService& operator=(const SpeechService&) = delete;

    void say(const std::string& text, std::string_view language, bool urgent) override;
    void hush() override;

private:
    // Shared with the thread, which may outlive this when the service does not answer; null before the first text.
    std::shared_ptr<UtteranceQueue> queue_;
};

} // namespace vorbel
