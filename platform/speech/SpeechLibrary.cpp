#include "platform/speech/SpeechLibrary.h"

#include <dlfcn.h>

namespace vorbel {

namespace {

template <typename Function>
bool find(void* library, const char* name, Function& function) {
    function = reinterpret_cast<Function>(dlsym(library, name)); // NOLINT: what dlsym gives has no type
    return function != nullptr;
}

} // namespace

std::unique_ptr<SpeechLibrary> SpeechLibrary::open() {
    void* library = dlopen("libspeechd.so.2", RTLD_LAZY | RTLD_LOCAL);
    if (library == nullptr) {
        return nullptr;
    }
    auto found = std::make_unique<SpeechLibrary>();
    const bool complete = find(library, "spd_get_default_address", found->defaultAddress) &&
                          find(library, "SPDConnectionAddress__free", found->freeAddress) &&
                          find(library, "spd_open2", found->connect) &&
                          find(library, "spd_close", found->close) &&
                          find(library, "spd_set_language", found->setLanguage) &&
                          find(library, "spd_set_synthesis_voice", found->setVoice) &&
                          find(library, "spd_cancel", found->cancel) && find(library, "spd_say", found->say);
    return complete ? std::move(found) : nullptr;
}

} // namespace vorbel
