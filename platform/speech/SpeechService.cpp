#include "platform/speech/SpeechService.h"

#include "platform/speech/SpeechLibrary.h"

#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <utility>

namespace vorbel {

namespace {

// The thread's side of the service.
class Speaker {
public:
    ~Speaker() { disconnect(); }
    Speaker() = default;
    Speaker(const Speaker&) = delete;
    Speaker& operator=(const Speaker&) = delete;

    // Returns whether the service took it.
    bool speak(const Utterance& utterance) {
        if (utterance.urgent && connection_ != nullptr) {
            library_->cancel(connection_);
        }
        if (utterance.text.empty()) {
            return true;
        }
        if (language_ != utterance.language) {
            disconnect(); // a voice once chosen would stay
        }
        if (connection_ == nullptr) {
            connect(utterance.language);
        }
        return connection_ != nullptr && library_->say(connection_, SPD_MESSAGE, utterance.text.c_str()) >= 0;
    }

    void disconnect() {
        if (connection_ != nullptr) {
            library_->close(std::exchange(connection_, nullptr));
        }
    }

private:
    // Starts the service where it is installed but does not run.
    void connect(const std::string& language) {
        constexpr int startService = 1;
        if (!library_) {
            library_ = SpeechLibrary::open();
        }
        language_ = language;
        char* problem = nullptr;
        SPDConnectionAddress* address = library_ ? library_->defaultAddress(&problem) : nullptr;
        if (address != nullptr) {
            connection_ = library_->connect("vorbel", "game", nullptr, SPD_MODE_SINGLE, address, startService,
                                            &problem);
            library_->freeAddress(address);
        }
        std::free(problem); // NOLINT(cppcoreguidelines-no-malloc): the library's
        if (connection_ != nullptr) {
            chooseVoice();
        }
    }

    // The usual synthesizer reads Chinese signs well with this voice only, badly with the one it takes by
    // itself. A synthesizer without it goes by the language.
    void chooseVoice() {
        library_->setLanguage(connection_, language_.c_str());
        if (language_ == "zh") {
            library_->setVoice(connection_, "Chinese (Mandarin, latin as Pinyin)");
        }
    }

    std::unique_ptr<SpeechLibrary> library_;
    SPDConnection* connection_ = nullptr;
    std::string language_; // of the connection
};

// A service that was restarted is looked for once more; one that is not there is not asked again and again.
void speakAll(const std::shared_ptr<UtteranceQueue>& queue) {
    Speaker speaker;
    bool isThere = true;
    while (const std::optional<Utterance> next = queue->pop()) {
        if (isThere && !speaker.speak(*next)) {
            speaker.disconnect();
            isThere = speaker.speak(*next);
        }
    }
}

} // namespace

SpeechService::~SpeechService() {
    if (queue_) {
        queue_->close();
    }
}

void SpeechService::say(const std::string& text, std::string_view language, bool urgent) {
    if (!queue_) {
        queue_ = std::make_shared<UtteranceQueue>();
        std::thread(speakAll, queue_).detach();
    }
    queue_->push({text, std::string(language), urgent});
}

void SpeechService::hush() {
    if (queue_) {
        queue_->push({.text = {}, .language = {}, .urgent = true});
    }
}

} // namespace vorbel
