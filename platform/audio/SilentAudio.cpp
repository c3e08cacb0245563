#include "platform/audio/Audio.h"

namespace vorbel {

namespace {

class SilentSound final : public SystemSound {
    void play() override {}
    void setVolume(float /*volume*/) override {}
    void stop() override {}
    void setPan(float /*pan*/) override {}
};

class SilentPlayer final : public AudioPlayer {
    void setLoopCount(int /*count*/) override {}
    void setVolume(float /*volume*/) override {}
    void play() override {}
};

class SilentTone final : public Tone {
    void sound(double /*pitch*/, double /*pan*/) override {}
    void silence() override {}
    void setVolume(float /*volume*/) override {}
};

} // namespace

std::unique_ptr<SystemSound> SilentAudio::systemSound(std::string_view /*name*/) {
    return std::make_unique<SilentSound>();
}

std::unique_ptr<AudioPlayer> SilentAudio::player(const std::filesystem::path& /*file*/) {
    return std::make_unique<SilentPlayer>();
}

std::unique_ptr<Tone> SilentAudio::tone() {
    return std::make_unique<SilentTone>();
}

} // namespace vorbel
