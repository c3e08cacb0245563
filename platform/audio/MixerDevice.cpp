#include "platform/audio/MixerDevice.h"

#include <SDL.h>
#include <SDL_mixer.h>
#include <alsa/asoundlib.h>

namespace vorbel {

namespace {

constexpr int bufferFrames = 512; // 11 ms from a contact to its click

void ignoreMessage(const char* /*file*/, int /*line*/, const char* /*function*/, int /*error*/,
                   const char* /*format*/, ...) {}

// ALSA writes a dozen lines to the console when it finds no sound card, which is no news to the player.
class QuietAlsa {
public:
    QuietAlsa() { snd_lib_error_set_handler(&ignoreMessage); }
    QuietAlsa(const QuietAlsa&) = delete;
    QuietAlsa& operator=(const QuietAlsa&) = delete;
    ~QuietAlsa() { snd_lib_error_set_handler(nullptr); }
};

bool isMixerOpened() {
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) {
        return false;
    }
    if (Mix_OpenAudioDevice(MixerDevice::sampleRate, AUDIO_F32SYS, MixerDevice::channels, bufferFrames,
                            nullptr, 0) != 0) {
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
        return false;
    }
    return true;
}

bool isSoundlessMixerOpened() {
    SDL_SetHintWithPriority(SDL_HINT_AUDIODRIVER, "dummy", SDL_HINT_OVERRIDE);
    const bool opened = isMixerOpened();
    SDL_ResetHint(SDL_HINT_AUDIODRIVER);
    return opened;
}

} // namespace

std::shared_ptr<MixerDevice> MixerDevice::open() {
    const QuietAlsa quiet;
    // SDL would keep Ctrl-C and SIGTERM from ending the program.
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    return isMixerOpened() || isSoundlessMixerOpened() ? std::make_shared<MixerDevice>() : nullptr;
}

MixerDevice::~MixerDevice() {
    Mix_CloseAudio();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    if (SDL_WasInit(0) == 0) {
        Mix_Quit();
        SDL_Quit();
    }
}

} // namespace vorbel
