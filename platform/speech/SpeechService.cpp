#include "platform/speech/SpeechService.h"

#include <libspeechd.h>

#include <cstdlib>
#include <optional>
#include <thread>
#include <utility>

namespace vorbel {

namespace {

struct CloseConnection {
    void operator()(SPDConnection* connection) const { spd_close(connection); }
};
using Connection = std::unique_ptr<SPDConnection, CloseConnection>;

struct FreeAddress {
    void operator()(SPDConnectionAddress* address) const { SPDConnectionAddress__free(address); }
};

// Starts the service where it is installed but does not run. Null without one.
Connection openConnection() {
    constexpr int startService = 1;
    char* problem = nullptr;
    const std::unique_ptr<SPDConnectionAddress, FreeAddress> address(spd_get_default_address(&problem));
    Connection connection(address == nullptr ? nullptr
                                             : spd_open2("vorbel", "game", nullptr, SPD_MODE_SINGLE,
                                                         address.get(), startService, &problem));
    std::free(problem); // NOLINT(cppcoreguidelines-no-malloc): the library's
    return connection;
}

// The usual synthesizer reads Chinese signs well with this voice only, badly with the one it takes by itself.
// A synthesizer without it goes by the language.
void chooseVoice(SPDConnection& connection, const std::string& language) {
    spd_set_language(&connection, language.c_str());
    if (language == "zh") {
        spd_set_synthesis_voice(&connection, "Chinese (Mandarin, latin as Pinyin)");
    }
}

// The thread's side of the service.
class Speaker {
public:
    // Returns whether the service took it.
    bool speak(const Utterance& utterance) {
        if (utterance.urgent && connection_) {
            spd_cancel(connection_.get());
        }
        if (utterance.text.empty()) {
            return true;
        }
        if (!connection_ || language_ != utterance.language) {
            connection_ = openConnection(); // a voice once chosen would stay
            language_ = utterance.language;
            if (connection_) {
                chooseVoice(*connection_, language_);
            }
        }
        return connection_ && spd_say(connection_.get(), SPD_MESSAGE, utterance.text.c_str()) >= 0;
    }

    void forget() { connection_.reset(); }

private:
    Connection connection_;
    std::string language_; // of the connection
};

// A service that was restarted is looked for once more; one that is not there is not asked again and again.
void speakAll(const std::shared_ptr<UtteranceQueue>& queue) {
    Speaker speaker;
    bool isThere = true;
    while (const std::optional<Utterance> next = queue->pop()) {
        if (isThere && !speaker.speak(*next)) {
            speaker.forget();
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
