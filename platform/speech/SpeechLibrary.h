// The library that talks to the desktop's speech service.
#pragma once

#include <libspeechd.h>

#include <memory>

namespace vorbel {

// Opened by whoever has something to say and by nobody else: a game that is silent neither needs nor loads it.
class SpeechLibrary {
public:
    // Null where it is not installed. It stays open until the program ends.
    [[nodiscard]] static std::unique_ptr<SpeechLibrary> open();

    decltype(&spd_get_default_address) defaultAddress = nullptr;
    decltype(&SPDConnectionAddress__free) freeAddress = nullptr;
    decltype(&spd_open2) connect = nullptr;
    decltype(&spd_close) close = nullptr;
    decltype(&spd_set_language) setLanguage = nullptr;
    decltype(&spd_set_synthesis_voice) setVoice = nullptr;
    decltype(&spd_cancel) cancel = nullptr;
    decltype(&spd_say) say = nullptr;
};

} // namespace vorbel
