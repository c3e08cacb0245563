// A tone on SDL's mixer.
#pragma once

#include "platform/audio/Audio.h"
#include "platform/audio/ToneSynthesizer.h"

#include <memory>

namespace vorbel {

class MixerDevice;

// Is added to what the mixer plays, from the first sound on: until then it costs nothing.
class SdlTone final : public Tone {
public:
    explicit SdlTone(std::shared_ptr<MixerDevice> device);
    SdlTone(const SdlTone&) = delete;
    SdlTone& operator=(const SdlTone&) = delete;
    ~SdlTone() override;

    void sound(double pitch, double pan) override;
    void silence() override { synthesizer_.silence(); }
    void setVolume(float volume) override { synthesizer_.setVolume(volume); }

private:
    static void mixed(int channel, void* samples, int size, void* tone); // called on the mixer's thread

    std::shared_ptr<MixerDevice> device_; // outlives the use of its samples
    ToneSynthesizer synthesizer_;
    bool added_ = false;
};

} // namespace vorbel
